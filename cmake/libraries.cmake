# The libraries that rooms may name; each is linked where it is allowed and nowhere else.
find_package(SQLite3 REQUIRED)
find_package(LibXml2 REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(LUA REQUIRED IMPORTED_TARGET lua5.4)
pkg_check_modules(TOML REQUIRED IMPORTED_TARGET tomlplusplus)
find_library(ZINT_LIBRARY zint REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets PrintSupport UiTools Svg Test)

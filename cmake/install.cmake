# Installing and the Debian package. The programs, their report layouts, schema and animation lie in one
# folder of their own, as the program looks for them beside itself; /usr/bin holds links.
set(levora_home ${CMAKE_INSTALL_LIBDIR}/levora-wealth-tax)

foreach(program levora-wealth-tax levora-wealth-script levora-wealth-data)
    if(TARGET ${program})
        install(TARGETS ${program} RUNTIME DESTINATION ${levora_home})
        install(CODE "
            set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
            file(MAKE_DIRECTORY \"\${bin}\")
            file(CREATE_LINK \"../${levora_home}/${program}\" \"\${bin}/${program}\" SYMBOLIC)")
        install(FILES share/man/${program}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    endif()
endforeach()
foreach(part Report)
    if(EXISTS ${CMAKE_SOURCE_DIR}/${part})
        install(DIRECTORY ${part} DESTINATION ${levora_home})
    endif()
endforeach()
file(GLOB schemas ${CMAKE_SOURCE_DIR}/share/*.xsd)
install(FILES ${schemas} DESTINATION ${levora_home})
install(DIRECTORY share/schema DESTINATION ${levora_home})
install(FILES share/levora-wealth-tax.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
# The file is named as the component that it describes.
install(FILES share/levora-wealth-tax.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
        RENAME example.levora.wealth_tax.metainfo.xml)
install(FILES share/icons/levora-wealth-tax.svg
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
# As in the source: README.md names the pages under docs/.
set(levora_pages ${CMAKE_INSTALL_DATADIR}/doc/levora-wealth-tax)
install(FILES README.md DESTINATION ${levora_pages})
install(DIRECTORY docs DESTINATION ${levora_pages})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME levora-wealth-tax)
set(CPACK_PACKAGE_CONTACT "Levora <team@levora.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Indian wealth tax: computation, return, challan")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# QUiLoader and the platform plugin are loaded at run time; paper needs both font families.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6uitools6, libqt6svg6, fonts-liberation, fonts-dejavu-core")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
include(CPack)

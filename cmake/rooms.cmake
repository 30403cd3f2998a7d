# One static library for each room. Includes start at src/.
#
#     levora_room(session SOURCES data_store.cpp ... LINKS levora::widgets PRIVATE SQLite::SQLite3)

function(levora_warnings target)
    # GCC 12 falsely warns of overlapping copies where texts are joined, when it optimises.
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Werror
                                             $<$<CONFIG:Release>:-Wno-restrict>)
    if(LEVORA_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-omit-frame-pointer
                                                 -fno-sanitize-recover=undefined)
        target_link_options(${target} PRIVATE -fsanitize=address,undefined)
    endif()
    if(LEVORA_FUZZ)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
endfunction()

function(levora_room room)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS;PRIVATE" ${ARGN})
    add_library(levora_${room} STATIC ${ROOM_SOURCES})
    add_library(levora::${room} ALIAS levora_${room})
    target_include_directories(levora_${room} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(levora_${room} PUBLIC ${ROOM_LINKS} PRIVATE ${ROOM_PRIVATE})
    levora_warnings(levora_${room})
endfunction()

# One test program for each room: tests/<room>/*.cpp with GoogleTest.
function(levora_tests room)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINKS" ${ARGN})
    add_executable(levora_${room}_tests ${ROOM_SOURCES})
    target_include_directories(levora_${room}_tests PRIVATE ${PROJECT_SOURCE_DIR}/src
                                                            ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(levora_${room}_tests PRIVATE ${ROOM_LINKS} GTest::gtest_main)
    target_compile_definitions(levora_${room}_tests PRIVATE
        LEVORA_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data" LEVORA_BIN="${CMAKE_BINARY_DIR}/bin")
    levora_warnings(levora_${room}_tests)
    add_test(NAME ${room} COMMAND levora_${room}_tests)
endfunction()

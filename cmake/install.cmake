# Installing and the Debian package. The programs, their report layouts, schema and animation lie in one
# folder of their own, as the program looks for them beside itself; /usr/bin holds links.
set(levora_home ${CMAKE_INSTALL_LIBDIR}/levora-wealth-tax)

# Pages and change log go out compressed, without a time in them, so that a package can be made again.
function(levora_install_compressed file folder)
    get_filename_component(name ${file} NAME)
    set(compressed ${CMAKE_BINARY_DIR}/compressed/${name}.gz)
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/compressed)
    execute_process(COMMAND gzip -9 -n -c ${CMAKE_SOURCE_DIR}/${file} OUTPUT_FILE ${compressed}
                    COMMAND_ERROR_IS_FATAL ANY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    install(FILES ${compressed} DESTINATION ${folder})
endfunction()

foreach(program levora-wealth-tax levora-wealth-script levora-wealth-data)
    if(TARGET ${program})
        install(TARGETS ${program} RUNTIME DESTINATION ${levora_home})
        install(CODE "
            set(bin \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
            file(MAKE_DIRECTORY \"\${bin}\")
            file(CREATE_LINK \"../${levora_home}/${program}\" \"\${bin}/${program}\" SYMBOLIC)")
        levora_install_compressed(share/man/${program}.1 ${CMAKE_INSTALL_MANDIR}/man1)
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
install(FILES share/debian/copyright DESTINATION ${levora_pages})
levora_install_compressed(share/debian/changelog ${levora_pages})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME levora-wealth-tax)
set(CPACK_PACKAGE_CONTACT "Levora <team@levora.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Indian wealth tax: computation, return, challan")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Computes the wealth tax of one assessee and assessment year, keeps the
Schedule III valuations behind it, completes the return of net wealth with
its e-Return file, and prints the challan ITNS 282, Form BB and a statement
of wealth. Every screen can be driven by a script.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# QUiLoader and the platform plugin are loaded at run time; paper needs both font families.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6uitools6, libqt6svg6, fonts-liberation, fonts-dejavu-core")
# Names are kept in any script; those in Devanagari need a font of it.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-lohit-deva")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
configure_file(share/debian/postrm.in ${CMAKE_BINARY_DIR}/postrm @ONLY FILE_PERMISSIONS
               OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PACKAGE_CONTROL_EXTRA ${CMAKE_BINARY_DIR}/postrm)
include(CPack)

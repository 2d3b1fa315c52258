# What an installation holds beside the programs and their resources, and the package of it.
find_program(TERRAFOLD_GZIP gzip)
set(packed ${CMAKE_BINARY_DIR}/packed)

# terrafold_install_packed(FILE DESTINATION [NAME]): the file, packed so that the time plays no part.
function(terrafold_install_packed file destination)
    get_filename_component(name ${file} NAME)
    if(ARGC GREATER 2)
        set(name ${ARGV2})
    endif()
    add_custom_command(OUTPUT ${packed}/${name}.gz
        COMMAND ${CMAKE_COMMAND} -E make_directory ${packed}
        COMMAND ${TERRAFOLD_GZIP} -9nc ${file} > ${packed}/${name}.gz
        DEPENDS ${file} VERBATIM)
    add_custom_target(packed_${name} ALL DEPENDS ${packed}/${name}.gz)
    install(FILES ${packed}/${name}.gz DESTINATION ${destination})
endfunction()

if(TERRAFOLD_GZIP)
    terrafold_install_packed(${PROJECT_SOURCE_DIR}/packaging/man/terrafold-cli.1 share/man/man1)
    if(TERRAFOLD_WINDOW)
        terrafold_install_packed(${PROJECT_SOURCE_DIR}/packaging/man/terrafold.1 share/man/man1)
    endif()
    terrafold_install_packed(${PROJECT_SOURCE_DIR}/packaging/debian/changelog share/doc/terrafold)
endif()
install(FILES packaging/debian/copyright DESTINATION share/doc/terrafold)
install(FILES packaging/terrafold.bash DESTINATION share/bash-completion/completions
        RENAME terrafold)
install(FILES packaging/terrafold.bash DESTINATION share/bash-completion/completions
        RENAME terrafold-cli)
if(TERRAFOLD_WINDOW)
    install(FILES packaging/terrafold.metainfo.xml DESTINATION share/metainfo
            RENAME app.terrafold.Terrafold.metainfo.xml)
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME terrafold)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PACKAGE_CONTACT "Terrafold developers <developers@terrafold.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "scenery design for flight simulators on a scanned map")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Terrafold turns a scanned map into flight simulator scenery. A designer ties
the map to latitude and longitude, traces polygons, roads, rivers, shores and
coastlines over it and gives grid cells their data; one command writes the
scenery's sources and compiles them with the simulator's outside tools, which
are not part of the package.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
include(CPack)

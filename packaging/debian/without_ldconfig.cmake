# Run by CPack over each package that it has made. CPack has ldconfig called for libraries one folder below usr/lib,
# where ldconfig never looks; without these scripts nothing runs at installation.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(content ${package}.content)
    foreach(step "--raw-extract;${package};${content}" "--root-owner-group;--build;${content};${package}")
        execute_process(COMMAND dpkg-deb ${step} OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
        file(REMOVE ${content}/DEBIAN/postinst ${content}/DEBIAN/postrm)
    endforeach()
    file(REMOVE_RECURSE ${content})
endforeach()

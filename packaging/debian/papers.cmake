# Run by CPack over what is about to be packed: adds Debian's papers, and packs what Debian wants packed.
set(papers ${CMAKE_CURRENT_LIST_DIR})
set(top ${CPACK_TEMPORARY_INSTALL_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX})
file(COPY ${papers}/copyright ${papers}/changelog DESTINATION ${top}/share/doc/tervo
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
file(GLOB pages ${top}/share/man/man1/*.1)
execute_process(COMMAND gzip -9n ${pages} ${top}/share/doc/tervo/changelog COMMAND_ERROR_IS_FATAL ANY)

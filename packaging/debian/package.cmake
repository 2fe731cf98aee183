# A Debian package of what is installed: `cpack -G DEB` in the build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tervo)
set(CPACK_PACKAGE_VENDOR Tervo)
set(CPACK_PACKAGE_CONTACT "Maintainers of Tervo <maintainers@tervo.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "triaxial-test charts with their drawing program")
set(CPACK_PACKAGE_DESCRIPTION
"Reduces the readings of triaxial tests on soil, draws for each sample a sheet
with its stress-strain curves and its Mohr half circles under their strength
envelope, and stores cohesion and friction angle back into the project.
Holds the drawing program tvcad with the chart module, at a window or from a
script (DWG, DXF, PDF, SVG, PNG), and the data manager tvdata (CSV, SQLite,
PostgreSQL over ODBC).")
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
# What no program is linked with: the faces of Chinese texts; what shows the windows' icon, the driver of projects
# on a server, and windows on Wayland.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "fonts-arphic-gbsn00lp, fonts-babelstone-han")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libqt6svg6, odbc-postgresql, qt6-wayland")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_COMPRESSION_TYPE gzip) # for a moment: it is packed again, without CPack's scripts
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/papers.cmake)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/without_ldconfig.cmake)
include(CPack)

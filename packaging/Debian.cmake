# The Debian packages: logchecker-headless holds the check without a window, for a server that has neither a
# screen nor a printer, and all documents; logchecker adds the programs with windows.

set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL headless desktop)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)

set(CPACK_DEBIAN_HEADLESS_PACKAGE_NAME logchecker-headless)
set(CPACK_DEBIAN_HEADLESS_PACKAGE_SUGGESTS "default-mta | mail-transport-agent | mailx")
# Before 1.1.0 one package held it all.
set(CPACK_DEBIAN_HEADLESS_PACKAGE_BREAKS "logchecker (<< 1.1.0)")
set(CPACK_DEBIAN_HEADLESS_PACKAGE_REPLACES "logchecker (<< 1.1.0)")
set(CPACK_COMPONENT_HEADLESS_DESCRIPTION
  "A station that sends one programme out in several splits must start
each advert break in the same minute and make it last the same length in
all of them. logcheck reads a day's advert log of each split, works out
every break's length from the station's cart store, and lists every break
time that does not match. The package holds the program, templates that run
it each night and mail what there is to do, the documents, and a made-up
station to try it on.")

set(CPACK_DEBIAN_DESKTOP_PACKAGE_NAME logchecker)
# Beside the libraries: the folders of the icons, and a font for paper.
set(CPACK_DEBIAN_DESKTOP_PACKAGE_DEPENDS
  "logchecker-headless (= ${PROJECT_VERSION}), hicolor-icon-theme, fonts-liberation | fonts-liberation2")
# What shows the guide, and what a job on paper is looked at with.
set(CPACK_DEBIAN_DESKTOP_PACKAGE_RECOMMENDS "cups-client, xdg-utils, firefox-esr | www-browser")
set(CPACK_COMPONENT_DESKTOP_DESCRIPTION
  "A station that sends one programme out in several splits must start
each advert break in the same minute and make it last the same length in
all of them. Log Checker reads a day's advert log of each split, works out
every break's length from the station's cart store, and lists every break
time that does not match. The package holds the desktop (logchecker) and
the cart browser (cartbrowser); the same check without a window (logcheck)
comes with logchecker-headless.")

# What is made for the packages alone, and not in every build.
add_custom_target(package_files DEPENDS logcheck logchecker cartbrowser guide)

# Compressed as the system wants them, without a time stamp, so that a package comes out the same twice.
find_program(GZIP_PROGRAM gzip REQUIRED)
function(compress file name)
  set(compressed "${CMAKE_CURRENT_BINARY_DIR}/${name}.gz")
  add_custom_command(OUTPUT "${compressed}" DEPENDS "${file}"
    COMMAND "${GZIP_PROGRAM}" -9nc "${file}" > "${compressed}")
  add_custom_target(compress_${name} DEPENDS "${compressed}")
  add_dependencies(package_files compress_${name})
endfunction()
configure_file(changelog.in changelog @ONLY)
compress("${CMAKE_CURRENT_BINARY_DIR}/changelog" changelog)
compress("${PROJECT_SOURCE_DIR}/CHANGELOG.md" CHANGELOG.md)

# The programs lie in a folder of their own, since what belongs to them lies beside them.
set(programs "${CMAKE_INSTALL_LIBDIR}/logchecker")
function(install_program program component)
  install(TARGETS ${program} DESTINATION "${programs}" COMPONENT ${component})
  file(CREATE_LINK "../${programs}/${program}" "${CMAKE_CURRENT_BINARY_DIR}/${program}" SYMBOLIC)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${program}"
    DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT ${component})
endfunction()

function(install_manual_page page component)
  compress("${PROJECT_SOURCE_DIR}/docs/man/${page}.1" ${page}.1)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${page}.1.gz"
    DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT ${component})
endfunction()

# What each package has to say of itself.
function(install_legal_files package component)
  install(FILES copyright "${PROJECT_SOURCE_DIR}/LICENSE" "${PROJECT_SOURCE_DIR}/THIRD-PARTY-NOTICES.md"
      "${CMAKE_CURRENT_BINARY_DIR}/changelog.gz" "${CMAKE_CURRENT_BINARY_DIR}/CHANGELOG.md.gz"
    DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/${package}" COMPONENT ${component})
endfunction()

include(DebianHeadless.cmake)
include(DebianDesktop.cmake)

# The Debian package: the three programs, their manual pages, desktop entry, icons, AppStream data, and
# the sample station.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION sound)
# Beside the libraries: the folders of the icons, and a font for paper.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "hicolor-icon-theme, fonts-liberation | fonts-liberation2")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "cups-client")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
  "A station that sends one programme out in several splits must start
each advert break in the same minute and make it last the same length in
all of them. Log Checker reads a day's advert log of each split, works out
every break's length from the station's cart store, and lists every break
time that does not match. The package holds the desktop (logchecker), the
same check without a window (logcheck), the cart browser (cartbrowser), and
a made-up station to try them on.")

# The programs lie in a folder of their own, since what belongs to them lies beside them.
set(programs "${CMAKE_INSTALL_LIBDIR}/logchecker")
install(TARGETS logcheck logchecker cartbrowser DESTINATION "${programs}")
install(FILES "${PROJECT_SOURCE_DIR}/programs/find.avi" DESTINATION "${programs}")
foreach(program logcheck logchecker cartbrowser)
  file(CREATE_LINK "../${programs}/${program}" "${CMAKE_CURRENT_BINARY_DIR}/${program}" SYMBOLIC)
  install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${program}" DESTINATION "${CMAKE_INSTALL_BINDIR}")
endforeach()

install(FILES org.logchecker.LogChecker.desktop
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/applications")
configure_file(org.logchecker.LogChecker.metainfo.xml.in org.logchecker.LogChecker.metainfo.xml @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/org.logchecker.LogChecker.metainfo.xml"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/metainfo")
set(icons "${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor")
install(FILES "${PROJECT_SOURCE_DIR}/common/ui/icons/program.svg"
  DESTINATION "${icons}/scalable/apps" RENAME org.logchecker.LogChecker.svg)
foreach(size 16 24 32 48 64 128 256)
  install(FILES "icons/${size}.png"
    DESTINATION "${icons}/${size}x${size}/apps" RENAME org.logchecker.LogChecker.png)
endforeach()

# What is made for the package alone, and not in every build.
add_custom_target(package_files DEPENDS logcheck logchecker cartbrowser)

# Compressed as the system wants them, without a time stamp, so that a package comes out the same twice.
find_program(GZIP_PROGRAM gzip REQUIRED)
function(install_compressed file name destination)
  set(compressed "${CMAKE_CURRENT_BINARY_DIR}/${name}.gz")
  add_custom_command(OUTPUT "${compressed}" DEPENDS "${file}"
    COMMAND "${GZIP_PROGRAM}" -9nc "${file}" > "${compressed}")
  add_custom_target(compress_${name} DEPENDS "${compressed}")
  add_dependencies(package_files compress_${name})
  install(FILES "${compressed}" DESTINATION "${destination}")
endfunction()
foreach(page logcheck logchecker cartbrowser)
  install_compressed("${PROJECT_SOURCE_DIR}/docs/man/${page}.1" ${page}.1
    "${CMAKE_INSTALL_MANDIR}/man1")
endforeach()
configure_file(changelog.in changelog @ONLY)
install_compressed("${CMAKE_CURRENT_BINARY_DIR}/changelog" changelog "${CMAKE_INSTALL_DOCDIR}")
install_compressed("${PROJECT_SOURCE_DIR}/CHANGELOG.md" CHANGELOG.md "${CMAKE_INSTALL_DOCDIR}")
install(FILES copyright "${PROJECT_SOURCE_DIR}/LICENSE" "${PROJECT_SOURCE_DIR}/THIRD-PARTY-NOTICES.md"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}")

# The sample station's settings hold whole paths, so they are told where it will lie.
set(sample "${CMAKE_CURRENT_BINARY_DIR}/sample/velmar")
set(sample_installed "${CMAKE_INSTALL_DATAROOTDIR}/logchecker/sample")
add_custom_command(OUTPUT "${sample}/SAMPLE.TXT" DEPENDS logcheck
  COMMAND "${CMAKE_COMMAND}" -E rm -rf "${sample}"
  COMMAND logcheck sample "${sample}" --date 2027-01-15 --days 7
  COMMAND sed -i "s,${sample},/usr/${sample_installed}/velmar,g"
    "${sample}/VELKLT.INI" "${sample}/VELMAR.INI")
add_custom_target(sample_station DEPENDS "${sample}/SAMPLE.TXT")
add_dependencies(package_files sample_station)
install(DIRECTORY "${sample}" DESTINATION "${sample_installed}")

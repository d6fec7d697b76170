# logchecker-headless: logcheck, what checks each night, the documents, and the sample station.

install_program(logcheck headless)
install(PROGRAMS nightly/logcheck-mail DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT headless)
install_manual_page(logcheck headless)
install_manual_page(logcheck-mail headless)
install_legal_files(logchecker-headless headless)

set(documents_installed "${CMAKE_INSTALL_DATAROOTDIR}/doc/logchecker-headless")
install(FILES ${documents} DESTINATION "${documents_installed}" COMPONENT headless)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/pictures"
  DESTINATION "${documents_installed}" COMPONENT headless)
install(DIRECTORY nightly DESTINATION "${documents_installed}" COMPONENT headless
  PATTERN logcheck-mail EXCLUDE)

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
install(DIRECTORY "${sample}" DESTINATION "${sample_installed}" COMPONENT headless)

# logchecker: the programs with windows, their guide, manual pages, desktop entries, icons and AppStream data.

foreach(program logchecker cartbrowser)
  install_program(${program} desktop)
  install_manual_page(${program} desktop)
endforeach()
install(FILES "${PROJECT_SOURCE_DIR}/programs/find.avi" DESTINATION "${programs}" COMPONENT desktop)
install_legal_files(logchecker desktop)
file(CREATE_LINK ../logchecker-headless "${CMAKE_CURRENT_BINARY_DIR}/documents" SYMBOLIC)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/documents"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/logchecker" COMPONENT desktop)

# The programs look for the guide beside them; it needs no machine of one kind.
install(DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/guide"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/logchecker" COMPONENT desktop)
file(RELATIVE_PATH guide_from_programs "/usr/${programs}" "/usr/${CMAKE_INSTALL_DATAROOTDIR}/logchecker/guide")
file(CREATE_LINK "${guide_from_programs}" "${CMAKE_CURRENT_BINARY_DIR}/guide" SYMBOLIC)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/guide" DESTINATION "${programs}" COMPONENT desktop)

install(FILES org.logchecker.LogChecker.desktop org.logchecker.CartBrowser.desktop
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/applications" COMPONENT desktop)
configure_file(org.logchecker.LogChecker.metainfo.xml.in org.logchecker.LogChecker.metainfo.xml @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/org.logchecker.LogChecker.metainfo.xml"
  DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/metainfo" COMPONENT desktop)
set(icons "${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor")
install(FILES "${PROJECT_SOURCE_DIR}/common/ui/icons/program.svg" DESTINATION "${icons}/scalable/apps"
  RENAME org.logchecker.LogChecker.svg COMPONENT desktop)
foreach(size 16 24 32 48 64 128 256)
  install(FILES "${PROJECT_BINARY_DIR}/common/ui/icons/program/${size}.png" DESTINATION "${icons}/${size}x${size}/apps"
    RENAME org.logchecker.LogChecker.png COMPONENT desktop)
endforeach()

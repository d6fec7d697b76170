# A zip to unpack anywhere: logcheck.exe, its licences, and how to use it.

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME "logcheck-${PROJECT_VERSION}-windows-x64")
set(CPACK_STRIP_FILES ON)

install(TARGETS logcheck DESTINATION .)
install(FILES WINDOWS.txt DESTINATION . RENAME README.txt)
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION . RENAME LICENSE.txt)
install(FILES "${PROJECT_SOURCE_DIR}/THIRD-PARTY-NOTICES.md" "${PROJECT_SOURCE_DIR}/docs/headless.md"
  DESTINATION .)

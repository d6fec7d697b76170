# A zip to unpack anywhere: logcheck.exe, its licences, the documents, and the task that runs it each day.

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_FILE_NAME "logcheck-${PROJECT_VERSION}-windows-x64")
set(CPACK_STRIP_FILES ON)

install(TARGETS logcheck DESTINATION .)
install(FILES WINDOWS.txt DESTINATION . RENAME README.txt)
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION . RENAME LICENSE.txt)
install(FILES "${PROJECT_SOURCE_DIR}/THIRD-PARTY-NOTICES.md" nightly/logcheck-task.xml DESTINATION .)
install(FILES ${documents} DESTINATION docs)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/pictures" DESTINATION docs)

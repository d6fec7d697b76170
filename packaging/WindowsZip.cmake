# The zip: logcheck.exe, its licences, the documents, and the task that runs it each day.

install(TARGETS logcheck DESTINATION . COMPONENT zip)
install(FILES windows/README.txt DESTINATION . COMPONENT zip)
install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION . RENAME LICENSE.txt COMPONENT zip)
install(FILES "${PROJECT_SOURCE_DIR}/THIRD-PARTY-NOTICES.md" nightly/logcheck-task.xml DESTINATION . COMPONENT zip)
install(FILES ${documents} DESTINATION docs COMPONENT zip)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs/pictures" DESTINATION docs COMPONENT zip)

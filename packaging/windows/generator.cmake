# Read by CPack for each kind of package: the zip and the installer hold files of their own.

# The one stamp: whoever strips a program writes the time into it.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  set(ENV{SOURCE_DATE_EPOCH} "${CPACK_LOGCHECKER_RELEASE_SECONDS}")
endif()
set(CPACK_MONOLITHIC_INSTALL ON)
if(CPACK_GENERATOR STREQUAL "NSIS")
  set(CPACK_PACKAGE_FILE_NAME "logchecker-${CPACK_PACKAGE_VERSION}-windows-x64")
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_LOGCHECKER_BUILD};LogChecker;installer;/")
else()
  set(CPACK_PACKAGE_FILE_NAME "logcheck-${CPACK_PACKAGE_VERSION}-windows-x64")
  set(CPACK_INSTALL_CMAKE_PROJECTS "${CPACK_LOGCHECKER_BUILD};LogChecker;zip;/")
endif()

# The packages for Windows: a zip of logcheck.exe for servers, to be unpacked anywhere, and an installer of all
# three programs.

set(CPACK_GENERATOR ZIP)
set(CPACK_STRIP_FILES ON)
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_SOURCE_DIR}/windows/generator.cmake")
execute_process(COMMAND date -u -d "${LOGCHECKER_RELEASE_DATE}" +%s
  OUTPUT_VARIABLE CPACK_LOGCHECKER_RELEASE_SECONDS OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(CPACK_LOGCHECKER_BUILD "${PROJECT_BINARY_DIR}")

# What is made for the packages alone, and not in every build.
add_custom_target(package_files DEPENDS logcheck)

include(WindowsZip.cmake)
if(LOGCHECKER_DESKTOP)
  include(WindowsInstaller.cmake)
endif()

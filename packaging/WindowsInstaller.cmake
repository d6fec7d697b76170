# The installer: the programs and what they need beside them, the guide, the sample station, and the
# licences of all that. windows/NSIS.template.in is what it does.

list(APPEND CMAKE_MODULE_PATH "${CMAKE_CURRENT_SOURCE_DIR}/windows")
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_SOURCE_DIR}/windows/files.cmake")
set(CPACK_NSIS_COMPRESSOR "/SOLID lzma")
# A paragraph is one line: the page that shows it breaks lines at its own width.
file(READ "${PROJECT_SOURCE_DIR}/LICENSE" licence)
string(REPLACE "\nCopyright" "\n\nCopyright" licence "${licence}")
string(REGEX REPLACE "([a-z,;])\n([a-zA-Z])" "\\1 \\2" licence "${licence}")
set(CPACK_RESOURCE_FILE_LICENSE "${CMAKE_CURRENT_BINARY_DIR}/LICENSE.txt")
file(CONFIGURE OUTPUT "${CPACK_RESOURCE_FILE_LICENSE}" CONTENT "${licence}" @ONLY)
set(CPACK_LOGCHECKER_INSTALLER "${CMAKE_CURRENT_SOURCE_DIR}/windows")
set(CPACK_LOGCHECKER_STRIP "${CMAKE_STRIP}")

add_dependencies(package_files logchecker cartbrowser guide)
install(TARGETS logcheck logchecker cartbrowser DESTINATION . COMPONENT installer)
install(FILES "${PROJECT_SOURCE_DIR}/programs/find.avi" nightly/logcheck-task.xml
  DESTINATION . COMPONENT installer)
install_windows_runtime(. COMPONENT installer)

# Its icon, of the pictures that the program's own is drawn to.
find_program(CONVERT_PROGRAM convert REQUIRED)
set(CPACK_LOGCHECKER_ICON "${CMAKE_CURRENT_BINARY_DIR}/installer.ico")
set(pictures 256.png 48.png 32.png 16.png)
list(TRANSFORM pictures PREPEND "${PROJECT_BINARY_DIR}/common/ui/icons/program/")
add_custom_command(OUTPUT "${CPACK_LOGCHECKER_ICON}" DEPENDS logchecker
  COMMAND "${CONVERT_PROGRAM}" ${pictures} "${CPACK_LOGCHECKER_ICON}")
add_custom_target(installer_icon DEPENDS "${CPACK_LOGCHECKER_ICON}")
add_dependencies(package_files installer_icon)

# The guide lies beside the programs, which open it.
install(DIRECTORY "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/guide" DESTINATION . COMPONENT installer)
install(FILES "${PROJECT_SOURCE_DIR}/CHANGELOG.md" DESTINATION . RENAME CHANGELOG.txt COMPONENT installer)

# The sample station.
set(CPACK_LOGCHECKER_STATION velmar)
set(CPACK_LOGCHECKER_SAMPLE "sample/${CPACK_LOGCHECKER_STATION}")
set(sample "${CMAKE_CURRENT_BINARY_DIR}/${CPACK_LOGCHECKER_SAMPLE}")
add_custom_command(OUTPUT "${sample}/SAMPLE.TXT" DEPENDS logcheck windows/sample.cmake
  COMMAND "${CMAKE_COMMAND}" "-DLOGCHECK=${CMAKE_CROSSCOMPILING_EMULATOR};$<TARGET_FILE:logcheck>"
    "-DPREFIX=${PROJECT_BINARY_DIR}/wine" "-DSAMPLE=${sample}"
    -P "${CMAKE_CURRENT_SOURCE_DIR}/windows/sample.cmake" VERBATIM)
add_custom_target(sample_station DEPENDS "${sample}/SAMPLE.TXT")
add_dependencies(package_files sample_station)
install(DIRECTORY "${sample}" DESTINATION sample COMPONENT installer)

# The licences, with the place that the sources are to be had from.
function(source_package result package)
  execute_process(COMMAND dpkg-query -W "-f=\${source:Package} \${source:Version}" ${package}
    OUTPUT_VARIABLE source COMMAND_ERROR_IS_FATAL ANY)
  set(${result} "${source}" PARENT_SCOPE)
endfunction()
source_package(qt_source qt6-base-dev)
source_package(gcc_source gcc-mingw-w64-base)
source_package(mingw_source mingw-w64-common)
configure_file(windows/SOURCES.txt.in SOURCES.txt @ONLY NEWLINE_STYLE CRLF)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/SOURCES.txt" "${PROJECT_SOURCE_DIR}/scripts/windows-qt.sh"
  DESTINATION licences COMPONENT installer)
function(install_licence file name)
  install(FILES "${file}" DESTINATION licences RENAME "${name}" COMPONENT installer)
endfunction()
install_licence("${CPACK_RESOURCE_FILE_LICENSE}" LICENSE.txt)
install_licence("${PROJECT_SOURCE_DIR}/THIRD-PARTY-NOTICES.md" THIRD-PARTY-NOTICES.txt)
install_licence(/usr/share/common-licenses/LGPL-3 LGPL-3.txt)
install_licence(/usr/share/common-licenses/GPL-3 GPL-3.txt)
install_licence(/usr/share/doc/qt6-base-dev/copyright Qt.txt)
install_licence(/usr/share/doc/gcc-mingw-w64-base/copyright GCC.txt)
install_licence(/usr/share/doc/mingw-w64-common/copyright MinGW-w64.txt)

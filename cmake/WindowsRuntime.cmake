# What programs with windows need beside them on Windows: the toolkit's DLLs and plugins and the compiler's
# runtime. They stay files of their own, so that others can be put in their place. The target
# windows_runtime copies them into the build's folder of programs, and install_windows_runtime() into an
# installation.

include_guard(GLOBAL)
set(windows_runtime_libraries Qt6Core.dll Qt6Gui.dll Qt6PrintSupport.dll Qt6Widgets.dll)
# Notes have pictures, of which this is the one kind that the toolkit reads by a plugin.
set(windows_runtime_plugins imageformats/qjpeg.dll platforms/qwindows.dll styles/qwindowsvistastyle.dll)
set(windows_compiler_libraries libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll)
# The tests of windows need these too.
set(windows_test_libraries Qt6Test.dll)

# The files with their whole paths, in the order of the names above.
list(TRANSFORM windows_runtime_libraries PREPEND "${LOGCHECKER_WINDOWS_QT}/bin/"
  OUTPUT_VARIABLE windows_runtime_library_files)
list(TRANSFORM windows_test_libraries PREPEND "${LOGCHECKER_WINDOWS_QT}/bin/"
  OUTPUT_VARIABLE windows_test_library_files)
foreach(library IN LISTS windows_compiler_libraries)
  execute_process(COMMAND "${CMAKE_CXX_COMPILER}" "-print-file-name=${library}"
    OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  file(REAL_PATH "${file}" file)
  list(APPEND windows_runtime_library_files "${file}")
endforeach()

# copy_beside_programs(FOLDER FILE...): a command for each file that has changed, into a folder below that of
# the programs; the copies are appended to `windows_copies`.
function(copy_beside_programs folder)
  set(copies ${windows_copies})
  foreach(file IN LISTS ARGN)
    cmake_path(GET file FILENAME name)
    cmake_path(APPEND CMAKE_RUNTIME_OUTPUT_DIRECTORY "${folder}" "${name}" OUTPUT_VARIABLE copy)
    cmake_path(NORMAL_PATH copy)
    add_custom_command(OUTPUT "${copy}" DEPENDS "${file}" VERBATIM
      COMMAND "${CMAKE_COMMAND}" -E copy "${file}" "${copy}"
      COMMENT "Copying ${name}")
    list(APPEND copies "${copy}")
  endforeach()
  set(windows_copies ${copies} PARENT_SCOPE)
endfunction()

copy_beside_programs("" ${windows_runtime_library_files}
  "${CMAKE_CURRENT_LIST_DIR}/windows-runtime/qt.conf")
if(LOGCHECKER_TESTS)
  copy_beside_programs("" ${windows_test_library_files})
endif()
foreach(plugin IN LISTS windows_runtime_plugins)
  cmake_path(GET plugin PARENT_PATH folder)
  copy_beside_programs("${folder}" "${LOGCHECKER_WINDOWS_QT}/plugins/${plugin}")
endforeach()
add_custom_target(windows_runtime DEPENDS ${windows_copies})

# install_windows_runtime(DESTINATION [arguments of install(FILES)...])
function(install_windows_runtime destination)
  install(FILES ${windows_runtime_library_files} "${PROJECT_SOURCE_DIR}/cmake/windows-runtime/qt.conf"
    DESTINATION "${destination}" ${ARGN})
  foreach(plugin IN LISTS windows_runtime_plugins)
    cmake_path(GET plugin PARENT_PATH folder)
    install(FILES "${LOGCHECKER_WINDOWS_QT}/plugins/${plugin}" DESTINATION "${destination}/${folder}" ${ARGN})
  endforeach()
endfunction()

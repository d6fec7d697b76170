# How what was built for Windows is tested: under Wine, on the system that built it. Wine takes seconds to
# start, so all cases of a program run in one go.

# Wine keeps what it takes for a disk and for a home in the build tree, and says nothing of its own. The
# print scheduler of this system is none of the tests'.
set(wine_home "${PROJECT_BINARY_DIR}/wine-home")
file(MAKE_DIRECTORY "${wine_home}")
set(wine_environment "WINEPREFIX=${PROJECT_BINARY_DIR}/wine" "HOME=${wine_home}"
  "XDG_CONFIG_HOME=${wine_home}" "XDG_DATA_HOME=${wine_home}" "WINEDEBUG=-all"
  "WINEDLLOVERRIDES=winemenubuilder.exe,mscoree,mshtml=" "LC_ALL=C.UTF-8" "CUPS_SERVER=/nowhere")

# run_in_wine(TEST [VARIABLE=VALUE...]): one at a time, since they share a registry.
function(run_in_wine test)
  set_tests_properties(${test} PROPERTIES
    ENVIRONMENT "${wine_environment};${ARGN}" RESOURCE_LOCK wine TIMEOUT 300)
endfunction()

function(add_wine_test target)
  add_test(NAME ${target} COMMAND ${target})
  run_in_wine(${target})
endfunction()

# Windows are worked with the system's own platform plugin, on a screen that no other program draws on.
function(add_wine_window_test target)
  add_dependencies(${target} windows_runtime)
  set_target_properties(${target} PROPERTIES CROSSCOMPILING_EMULATOR
    "python3;${CMAKE_CURRENT_SOURCE_DIR}/support/wine/on_screen.py;${CMAKE_CROSSCOMPILING_EMULATOR}")
  add_test(NAME ${target} COMMAND ${target})
  run_in_wine(${target} "QT_QPA_PLATFORM=windows")
endfunction()

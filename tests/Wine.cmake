# How what was built for Windows is tested: under Wine, on the system that built it. Wine takes seconds to
# start, so all cases of a program run in one go.

# Wine keeps what it takes for a disk and for a home in the build tree, and says nothing of its own. The
# print scheduler of this system is none of the tests'.
set(wine_home "${PROJECT_BINARY_DIR}/wine-home")
file(MAKE_DIRECTORY "${wine_home}")
set(wine_environment "HOME=${wine_home}" "XDG_CONFIG_HOME=${wine_home}" "XDG_DATA_HOME=${wine_home}"
  "WINEDEBUG=-all" "WINEDLLOVERRIDES=winemenubuilder.exe,mscoree,mshtml=" "LC_ALL=C.UTF-8"
  "CUPS_SERVER=/nowhere")

# What can't hold under Wine alone, for docs/windows.md to say why.
set(wine_leaves_out AsTheGuideSays/PrintedResultsTest.AllOfItIsOnThePage/2
  AsTheGuideSays/PrintedResultsTest.AllOfItIsOnThePage/3)
list(JOIN wine_leaves_out ":" wine_leaves_out)
list(APPEND wine_environment "GTEST_FILTER=-${wine_leaves_out}")

# run_on_wine_machine(TEST MACHINE [VARIABLE=VALUE...]): one test at a time on a machine, since they share its
# registry. There are two machines, so that two processors have work.
function(run_on_wine_machine test machine)
  set_tests_properties(${test} PROPERTIES RESOURCE_LOCK ${machine} TIMEOUT 900
    ENVIRONMENT "${wine_environment};WINEPREFIX=${PROJECT_BINARY_DIR}/${machine};${ARGN}")
endfunction()

# run_in_wine(TEST [VARIABLE=VALUE...]): without windows.
function(run_in_wine test)
  run_on_wine_machine(${test} wine ${ARGN})
endfunction()

# Wine keeps the toolkit's own variables to itself, unless they come so.
function(run_in_wine_with_windows test)
  run_on_wine_machine(${test} wine-windows "WINEQT_QPA_PLATFORM=windows" ${ARGN})
  set_tests_properties(${test} PROPERTIES FIXTURES_REQUIRED wine_windows)
endfunction()

function(add_wine_test target)
  add_test(NAME ${target} COMMAND ${target})
  run_in_wine(${target})
endfunction()

# add_wine_window_test(TARGET [RUNNER]): windows are worked with the system's own platform plugin, on a screen
# that no other program draws on.
function(add_wine_window_test target)
  set(runners on_screen.py ${ARGN})
  list(GET runners -1 runner)
  add_dependencies(${target} windows_runtime)
  set_target_properties(${target} PROPERTIES CROSSCOMPILING_EMULATOR
    "python3;${CMAKE_CURRENT_SOURCE_DIR}/support/wine/${runner};${CMAKE_CROSSCOMPILING_EMULATOR}")
  add_test(NAME ${target} COMMAND ${target})
  run_in_wine_with_windows(${target})
endfunction()

add_test(NAME wine.windows COMMAND python3 "${CMAKE_CURRENT_SOURCE_DIR}/support/wine/prefix.py"
  "${CMAKE_CROSSCOMPILING_EMULATOR}")
run_on_wine_machine(wine.windows wine-windows)
set_tests_properties(wine.windows PROPERTIES FIXTURES_SETUP wine_windows)

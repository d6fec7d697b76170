# Libraries of others, under the same target names on every system.
#
# A cross build finds no packages of its own. Header-only libraries come from the host there, copied
# into the build tree, since the host's include folder as a whole must stay out of sight; GoogleTest is
# built from its source package.

function(copy_host_headers folder target)
  find_path(host_include_${folder} "${folder}" PATHS /usr/include NO_DEFAULT_PATH
    NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set(copy "${PROJECT_BINARY_DIR}/third-party/${folder}")
  file(COPY "${host_include_${folder}}/${folder}" DESTINATION "${copy}")
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  set_target_properties(${target} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "${copy}")
endfunction()

if(CMAKE_CROSSCOMPILING)
  copy_host_headers(CLI CLI11::CLI11)
  copy_host_headers(nlohmann nlohmann_json::nlohmann_json)
else()
  find_package(CLI11 REQUIRED)
  find_package(nlohmann_json REQUIRED)
endif()

if(LOGCHECKER_DESKTOP)
  if(WIN32 AND NOT LOGCHECKER_WINDOWS_QT)
    message(FATAL_ERROR "Programs with windows need Qt for Windows: give LOGCHECKER_WINDOWS_QT the folder that "
      "scripts/windows-qt.sh prints, or build logcheck alone with -DLOGCHECKER_DESKTOP=OFF.")
  endif()
  find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets PrintSupport)
  if(NOT WIN32)
    find_package(Cups REQUIRED)
  endif()
  if(LOGCHECKER_TESTS)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
  endif()
endif()

# Whether the target `rapidcheck` is there, for tests of properties.
set(LOGCHECKER_HAVE_RAPIDCHECK FALSE)

if(LOGCHECKER_TESTS)
  if(CMAKE_CROSSCOMPILING)
    set(INSTALL_GTEST OFF)
    add_subdirectory(/usr/src/googletest "${PROJECT_BINARY_DIR}/third-party/googletest"
      EXCLUDE_FROM_ALL)
    # Others' headers are not held to our warnings.
    foreach(library gtest gmock)
      get_target_property(headers ${library} INTERFACE_INCLUDE_DIRECTORIES)
      set_target_properties(${library} PROPERTIES
        INTERFACE_SYSTEM_INCLUDE_DIRECTORIES "${headers}")
    endforeach()
    foreach(library gtest gtest_main gmock)
      if(NOT TARGET GTest::${library})
        add_library(GTest::${library} ALIAS ${library})
      endif()
    endforeach()
  else()
    find_package(GTest REQUIRED)
    find_package(rapidcheck QUIET)
    set(LOGCHECKER_HAVE_RAPIDCHECK ${rapidcheck_FOUND})
  endif()
endif()

# A room is one folder of the house and one static library, logchecker_<room>. Its plain half uses the
# standard library and the rooms below it, nothing else; USES names those rooms.

add_library(logchecker_flags INTERFACE)
target_include_directories(logchecker_flags INTERFACE "${PROJECT_SOURCE_DIR}" "${PROJECT_BINARY_DIR}/generated")
# Sums are rounded to single precision at each step, so no multiplication may be fused into one.
target_compile_options(logchecker_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
  -Wimplicit-fallthrough -Werror -ffp-contract=off)
# GCC 12 takes the library's own string concatenation for an overlapping copy, and in a release, where it
# sees more of a string's life at once, for one of more bytes than there can be.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(logchecker_flags INTERFACE -Wno-restrict
    $<$<CONFIG:Release>:-Wno-stringop-overflow -Wno-array-bounds>)
  if(CMAKE_UNITY_BUILD)
    # It takes a source that another one includes for a header.
    target_compile_options(logchecker_flags INTERFACE -Wno-subobject-linkage)
  endif()
endif()
if(LOGCHECKER_SANITIZE)
  target_compile_options(logchecker_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(logchecker_flags INTERFACE -fsanitize=address,undefined)
endif()
if(LOGCHECKER_FUZZ)
  # What the fuzzers steer by.
  target_compile_options(logchecker_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# link_whole(TARGET): on Windows the program holds all that it needs in one file and starts at once. What has
# windows shares the compiler's runtime with the toolkit's DLLs instead, since a process that has it twice fails.
function(link_whole target)
  if(WIN32)
    target_link_options(${target} PRIVATE -static)
  endif()
endfunction()

# share_headers(TARGET KIND HEADERS...): what nearly every file of a kind includes is read by the compiler
# once for all targets of that kind. Files name what they use all the same: the lint builds without this.
function(share_headers target kind)
  get_property(first GLOBAL PROPERTY LOGCHECKER_HEADERS_${kind})
  if(first)
    target_precompile_headers(${target} REUSE_FROM ${first})
  else()
    target_precompile_headers(${target} PRIVATE ${ARGN})
    set_property(GLOBAL PROPERTY LOGCHECKER_HEADERS_${kind} ${target})
  endif()
endfunction()

set(standard_headers <algorithm> <array> <cstdint> <cstdlib> <filesystem> <fstream> <functional> <map>
  <memory> <optional> <set> <string> <string_view> <utility> <vector>)
set(window_headers ${standard_headers} <QtWidgets/QtWidgets>)

function(add_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  add_library(logchecker_${name} ${ROOM_SOURCES})
  target_link_libraries(logchecker_${name} PUBLIC logchecker_flags)
  share_headers(logchecker_${name} rooms ${standard_headers})
  foreach(room IN LISTS ROOM_USES)
    target_link_libraries(logchecker_${name} PUBLIC logchecker_${room})
  endforeach()
endfunction()

# The windows of a room: its ui/ folder, logchecker_<room>_ui. Layouts are .ui files beside their forms,
# whose headers have commands of their own, so that the build knows them before it looks at what is new:
# a changed layout reaches the program in one build. USES names the rooms whose windows it uses.
function(add_room_ui name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  add_library(logchecker_${name}_ui ${ROOM_SOURCES})
  set_target_properties(logchecker_${name}_ui PROPERTIES AUTOMOC ON)
  file(GLOB layouts CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.ui")
  if(layouts)
    qt6_wrap_ui(headers ${layouts})
    target_sources(logchecker_${name}_ui PRIVATE ${headers})
    target_include_directories(logchecker_${name}_ui PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
    add_custom_target(logchecker_${name}_ui_layouts DEPENDS ${headers})
  endif()
  target_link_libraries(logchecker_${name}_ui PUBLIC logchecker_${name} Qt6::Widgets)
  share_headers(logchecker_${name}_ui windows ${window_headers})
  foreach(room IN LISTS ROOM_USES)
    target_link_libraries(logchecker_${name}_ui PUBLIC logchecker_${room}_ui)
  endforeach()
endfunction()

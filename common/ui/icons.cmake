# The pictures drawn for the program: each is drawn to every size that a screen asks for, so that none of
# them is stretched at 100, 150, 200 or 300 %. They lie in the build tree under icons/<name>/<size>.png.

find_program(RSVG_CONVERT_PROGRAM rsvg-convert REQUIRED)

# Title bars and lists (16), the buttons of a window (17) and of the frame (32), and each at its scales.
set(icon_sizes 16 17 20 24 26 32 34 40 48 51 64 96)
# What "no problems" stands beside, and the splash, the task bar and the menu of programs.
set(icon_sizes_no-problems 50 75 100 150)
set(icon_sizes_program 128 144 192 256 288)

file(GLOB drawings CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/icons/*.svg")
set(icons_listed "")
foreach(drawing IN LISTS drawings)
  cmake_path(GET drawing STEM name)
  set(pictures "")
  set(draw "")
  foreach(size IN LISTS icon_sizes icon_sizes_${name})
    set(picture "${CMAKE_CURRENT_BINARY_DIR}/icons/${name}/${size}.png")
    list(APPEND pictures "${picture}")
    list(APPEND draw COMMAND "${RSVG_CONVERT_PROGRAM}" -w ${size} -h ${size} -o "${picture}" "${drawing}")
    string(APPEND icons_listed "    <file>icons/${name}/${size}.png</file>\n")
  endforeach()
  file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/icons/${name}")
  add_custom_command(OUTPUT ${pictures} ${draw} DEPENDS "${drawing}"
    COMMENT "Drawing the icon ${name}" VERBATIM)
endforeach()

file(CONFIGURE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/icons.qrc" CONTENT
  "<RCC>\n  <qresource prefix=\"/\">\n${icons_listed}  </qresource>\n</RCC>\n")
qt6_add_resources(icon_sources "${CMAKE_CURRENT_BINARY_DIR}/icons.qrc")
set_source_files_properties(${icon_sources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON
  SKIP_PRECOMPILE_HEADERS ON)
target_sources(logchecker_common_ui PRIVATE ${icon_sources})

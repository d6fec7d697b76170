# describe_program(PROGRAM DESCRIPTION): gives a program its icon, version and manifest.

find_program(RSVG_CONVERT_PROGRAM rsvg-convert REQUIRED)
find_program(LOGCHECKER_PYTHON python3 REQUIRED)

set(program_icon "${CMAKE_CURRENT_BINARY_DIR}/program.ico")
set(drawing "${PROJECT_SOURCE_DIR}/common/ui/icons/program.svg")
set(pictures "")
set(draw "")
foreach(size 16 20 24 32 40 48 64 256)
  set(picture "${CMAKE_CURRENT_BINARY_DIR}/program-${size}.png")
  list(APPEND pictures "${picture}")
  list(APPEND draw COMMAND "${RSVG_CONVERT_PROGRAM}" -w ${size} -h ${size} -o "${picture}" "${drawing}")
endforeach()
add_custom_command(OUTPUT "${program_icon}" ${draw}
  COMMAND "${LOGCHECKER_PYTHON}" "${PROJECT_SOURCE_DIR}/scripts/make_ico.py" "${program_icon}" ${pictures}
  DEPENDS "${drawing}" "${PROJECT_SOURCE_DIR}/scripts/make_ico.py" VERBATIM)
add_custom_target(program_icon DEPENDS "${program_icon}")

function(describe_program PROGRAM PROGRAM_DESCRIPTION)
  set(PROGRAM_ICON "${program_icon}")
  set(PROGRAM_MANIFEST "${CMAKE_CURRENT_BINARY_DIR}/${PROGRAM}.manifest")
  configure_file(windows/program.manifest.in "${PROGRAM_MANIFEST}" @ONLY)
  set(resources "${CMAKE_CURRENT_BINARY_DIR}/${PROGRAM}.rc")
  configure_file(windows/program.rc.in "${resources}" @ONLY)
  set_source_files_properties("${resources}" PROPERTIES
    OBJECT_DEPENDS "${program_icon};${PROGRAM_MANIFEST}")
  target_sources(${PROGRAM} PRIVATE "${resources}")
  add_dependencies(${PROGRAM} program_icon)
endfunction()

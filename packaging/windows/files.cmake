# Run by CPack when all files of the installer lie in their places: writes files.nsh, which installs and removes
# them one by one, in an order that does not depend on the disk.

if(NOT CPACK_GENERATOR STREQUAL "NSIS")
  return()
endif()
set(staged "${CPACK_TEMPORARY_INSTALL_DIRECTORY}")
file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE "${staged}" "${staged}/*")
list(SORT files)

# The toolkit's DLLs come with symbols that only a debugger would miss.
set(programs ${files})
list(FILTER programs INCLUDE REGEX "\\.(exe|dll)$")
foreach(file IN LISTS programs)
  execute_process(COMMAND "${CPACK_LOGCHECKER_STRIP}" "${staged}/${file}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()

set(install "")
set(remove "")
set(folders "")
set(size 0)
set(folder_before "none")
foreach(file IN LISTS files)
  cmake_path(GET file PARENT_PATH folder)
  string(REPLACE "/" "\\" installed "${file}")
  string(REPLACE "/" "\\" installed_folder "${folder}")
  if(NOT folder STREQUAL folder_before)
    string(APPEND install "  SetOutPath \"$INSTDIR\\${installed_folder}\"\n")
    set(folder_before "${folder}")
  endif()
  string(APPEND install "  File \"${staged}/${file}\"\n")
  string(APPEND remove "  Delete \"$INSTDIR\\${installed}\"\n")
  while(NOT folder STREQUAL "")
    list(APPEND folders "${folder}")
    cmake_path(GET folder PARENT_PATH folder)
  endwhile()
  file(SIZE "${staged}/${file}" bytes)
  math(EXPR size "${size} + ${bytes}")
endforeach()

# Each before the one that holds it, and only if nothing else is left in it.
list(REMOVE_DUPLICATES folders)
list(SORT folders ORDER DESCENDING)
foreach(folder IN LISTS folders)
  string(REPLACE "/" "\\" folder "${folder}")
  string(APPEND remove "  RMDir \"$INSTDIR\\${folder}\"\n")
endforeach()

# The programs first: whoever is told what is in use knows these.
set(libraries ${programs})
list(FILTER libraries INCLUDE REGEX "\\.dll$")
list(FILTER programs EXCLUDE REGEX "\\.dll$")
set(require "")
foreach(file IN LISTS programs libraries)
  string(REPLACE "/" "\\" file "${file}")
  string(APPEND require "  StrCpy $0 \"$INSTDIR\\${file}\"\n  Call \${un}RequireFree\n")
endforeach()

# The sample's settings hold whole paths, and only the installer knows where it puts them.
set(place "")
foreach(name VELKLT.INI VELMAR.INI)
  file(STRINGS "${staged}/${CPACK_LOGCHECKER_SAMPLE}/${name}" lines)
  string(REPLACE "/" "\\" sample "${CPACK_LOGCHECKER_SAMPLE}")
  foreach(line IN LISTS lines)
    if(line MATCHES "^\\[(.*)\\]")
      set(section "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^([A-Za-z0-9]+)=.*\\\\${CPACK_LOGCHECKER_STATION}\\\\(.*)$")
      string(APPEND place "  WriteINIStr \"$INSTDIR\\${sample}\\${name}\" \"${section}\" \"${CMAKE_MATCH_1}\" "
        "\"$INSTDIR\\${sample}\\${CMAKE_MATCH_2}\"\n")
    endif()
  endforeach()
endforeach()

math(EXPR kilobytes "${size} / 1024")
file(WRITE "${CPACK_TOPLEVEL_DIRECTORY}/files.nsh"
  "!define INSTALLED_KB ${kilobytes}\n"
  "!macro InstallFiles\n${install}!macroend\n"
  "!macro RemoveFiles\n${remove}!macroend\n"
  "!macro RequireFreeFiles un\n${require}!macroend\n"
  "!macro PlaceSample\n${place}!macroend\n")

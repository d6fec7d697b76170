# Writes the sample station to SAMPLE by LOGCHECK, with paths as if it lay where the installer puts it.

file(REMOVE_RECURSE "${SAMPLE}")
set(ENV{WINEPREFIX} "${PREFIX}")
set(ENV{WINEDEBUG} -all)
set(ENV{WINEDLLOVERRIDES} "winemenubuilder.exe,mscoree,mshtml=")
execute_process(COMMAND ${LOGCHECK} sample "${SAMPLE}" --date 2027-01-15 --days 7 COMMAND_ERROR_IS_FATAL ANY)
cmake_path(GET SAMPLE FILENAME station)
foreach(name VELKLT.INI VELMAR.INI)
  file(READ "${SAMPLE}/${name}" text)
  string(REGEX REPLACE "=[^\r\n]*\\\\${station}\\\\" "=C:\\\\Program Files\\\\Log Checker\\\\sample\\\\${station}\\\\"
    text "${text}")
  file(WRITE "${SAMPLE}/${name}" "${text}")
endforeach()

# Cross build for 64-bit Windows with mingw-w64 and POSIX threads.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The toolkit, which scripts/windows-qt.sh builds and names. Its tools are those of this system.
set(LOGCHECKER_WINDOWS_QT "$ENV{LOGCHECKER_WINDOWS_QT}" CACHE PATH "The folder that scripts/windows-qt.sh prints")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LOGCHECKER_WINDOWS_QT)
if(LOGCHECKER_WINDOWS_QT)
  list(APPEND CMAKE_FIND_ROOT_PATH "${LOGCHECKER_WINDOWS_QT}")
  list(APPEND CMAKE_PREFIX_PATH "${LOGCHECKER_WINDOWS_QT}")
  set(QT_HOST_PATH /usr)
  file(GLOB QT_HOST_PATH_CMAKE_DIR /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake)
endif()

# Wine runs what was built, so that the tests run where the build does.
find_program(WINE_PROGRAM NAMES wine64 wine PATHS /usr/lib/wine)
if(WINE_PROGRAM)
  set(CMAKE_CROSSCOMPILING_EMULATOR "${WINE_PROGRAM}")
endif()

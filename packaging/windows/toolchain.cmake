# Windows programs (64 bits) from Debian's MinGW, for headers and libraries of the prefix that prefix.sh makes.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# Threads of the -posix kind: the other kind of this compiler has no std::thread and no std::mutex.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

if(DEFINED ENV{BOGENWERKER_WINDOWS})
  set(prefix $ENV{BOGENWERKER_WINDOWS})
elseif(DEFINED ENV{XDG_CACHE_HOME})
  set(prefix $ENV{XDG_CACHE_HOME}/bogenwerker/windows)
else()
  set(prefix $ENV{HOME}/.cache/bogenwerker/windows)
endif()
set(BOGENWERKER_WINDOWS ${prefix} CACHE PATH "The prefix that packaging/windows/prefix.sh makes")
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES BOGENWERKER_WINDOWS)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${BOGENWERKER_WINDOWS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Everything but the system's own libraries goes into the program.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# The tools that make sources run here: moc, rcc, uic.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)

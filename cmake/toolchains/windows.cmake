# Programs for 64-bit Windows, made and tried here: the MinGW compiler, and Wine as the system that runs them. What they
# are built against stands below PLANNER_WINDOWS_ROOT, which scripts/windows fills.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(PLANNER_WINDOWS_ROOT ${CMAKE_CURRENT_LIST_DIR}/../../build/windows-root)
set(CMAKE_FIND_ROOT_PATH ${PLANNER_WINDOWS_ROOT} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# A program that needs no file beside itself but the project's own library.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static-libgcc")

set(CMAKE_CROSSCOMPILING_EMULATOR env WINEDEBUG=-all WINEPREFIX=${PLANNER_WINDOWS_ROOT}/wine wine)

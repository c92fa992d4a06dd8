# What the two cross tool chains for Windows share; they name the processor in KW_WINDOWS_CPU and
# the bitness in KW_WINDOWS_BITS.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${KW_WINDOWS_CPU})
set(CMAKE_CXX_COMPILER ${KW_WINDOWS_CPU}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${KW_WINDOWS_CPU}-w64-mingw32-windres)
set(CMAKE_OBJDUMP ${KW_WINDOWS_CPU}-w64-mingw32-objdump CACHE FILEPATH "")

# Nothing of the building machine's own headers and libraries; its programs only.
set(CMAKE_FIND_ROOT_PATH /usr/${KW_WINDOWS_CPU}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Everything but the system's own libraries is linked in: a program or library is one file.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")

# Tests run under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../scripts/wine x${KW_WINDOWS_BITS})

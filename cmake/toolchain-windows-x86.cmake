# 32-bit Windows, cross-built with MinGW-w64.
set(KW_WINDOWS_CPU i686)
set(KW_WINDOWS_BITS 86)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-windows.cmake)

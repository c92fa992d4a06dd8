# 64-bit Windows, cross-built with MinGW-w64.
set(KW_WINDOWS_CPU x86_64)
set(KW_WINDOWS_BITS 64)
include(${CMAKE_CURRENT_LIST_DIR}/toolchain-windows.cmake)

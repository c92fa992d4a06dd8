# Compiler settings that hold for every target of the project.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
# Programs find the shared libraries beside them, also after the build folder has been moved.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

# Which implementations of the platform services are built: src/platform/<KW_SYSTEM>.
if(WIN32)
  set(KW_SYSTEM windows)
else()
  set(KW_SYSTEM linux)
endif()

add_library(kw_options INTERFACE)
target_compile_options(kw_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# The values are worked on in the caller's own storage, as if that were declared with their types.
target_compile_options(kw_options INTERFACE -fno-strict-aliasing)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlapping copies in the standard library's own string concatenation, and values
  # read before they are set in its std::optional. clang and the sanitizers look for the real ones.
  target_compile_options(kw_options INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()
if(WIN32)
  # The system's functions as of Windows 7; none of its macros that take the names min and max.
  target_compile_definitions(kw_options INTERFACE
    WIN32_LEAN_AND_MEAN NOMINMAX UNICODE _UNICODE _WIN32_WINNT=0x0601)
endif()
if(KW_SANITIZE)
  # vptr checks read the type information of C++ vtables; automation objects have none.
  target_compile_options(kw_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all
    -fno-omit-frame-pointer -g)
  target_link_options(kw_options INTERFACE -fsanitize=address,undefined)
endif()
if(KW_FUZZ)
  target_compile_options(kw_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(KW_COVERAGE)
  target_compile_options(kw_options INTERFACE --coverage -O0 -g)
  target_link_options(kw_options INTERFACE --coverage)
endif()

# The type library and the version of KWUTILS.DLL, as resources of the file.
find_program(KW_WIDL ${CMAKE_SYSTEM_PROCESSOR}-w64-mingw32-widl REQUIRED)
# The system's own type library, which the definitions import, comes with Wine.
find_path(KW_SYSTEM_TYPES stdole2.tlb REQUIRED NO_CMAKE_FIND_ROOT_PATH
  PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/wine/x86_64-windows)
math(EXPR bits "8 * ${CMAKE_SIZEOF_VOID_P}")
set(type_library ${CMAKE_CURRENT_BINARY_DIR}/kwutils.tlb)
add_custom_command(OUTPUT ${type_library}
  COMMAND ${KW_WIDL} -t -m${bits} -I${CMAKE_CURRENT_SOURCE_DIR} -L${KW_SYSTEM_TYPES}
          -o ${type_library} ${CMAKE_CURRENT_SOURCE_DIR}/kwutils.idl
  DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/kwutils.idl ${CMAKE_CURRENT_SOURCE_DIR}/automation_base.idl)

# The system's four numbers of version 1.02.0012 are 1, 2, 0 and 12.
set(KW_VERSION_NUMBERS ${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},0,${PROJECT_VERSION_PATCH})
configure_file(${CMAKE_CURRENT_SOURCE_DIR}/kwutils.rc.in ${CMAKE_CURRENT_BINARY_DIR}/kwutils.rc @ONLY)

target_sources(kwutils_server PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/kwutils.rc)
target_include_directories(kwutils_server PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
set_source_files_properties(${CMAKE_CURRENT_BINARY_DIR}/kwutils.rc PROPERTIES
  OBJECT_DEPENDS ${type_library})

# What lets programs use the library without registration.
set(KW_ASSEMBLY_VERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.0.${PROJECT_VERSION_PATCH})
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(KW_ARCHITECTURE x86)
else()
  set(KW_ARCHITECTURE amd64)
endif()
configure_file(${CMAKE_CURRENT_SOURCE_DIR}/kwutils.manifest.in
  ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/kwUtils.manifest @ONLY)
configure_file(${CMAKE_CURRENT_SOURCE_DIR}/client.manifest.in
  ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/client.manifest @ONLY)

# What programs link and what `cmake --install` lays down: kwutils::kwutils (the C++ API, static),
# the automation library, the tool, the headers, a package configuration and a pkg-config file.
#
# Three components: what programs run with, what they are built with, the tool.
include(CMakePackageConfigHelpers)

get_property(folders GLOBAL PROPERTY KW_FOLDERS)
get_property(headers GLOBAL PROPERTY KW_PUBLIC_HEADERS)

set(objects)
foreach(folder IN LISTS folders)
  list(APPEND objects $<TARGET_OBJECTS:kw_${folder}>)
endforeach()
add_library(kwutils_static STATIC ${objects})
add_library(kwutils::kwutils ALIAS kwutils_static)
set_target_properties(kwutils_static PROPERTIES
  OUTPUT_NAME kwutils EXPORT_NAME kwutils LINKER_LANGUAGE CXX)
target_compile_features(kwutils_static INTERFACE cxx_std_20)
target_include_directories(kwutils_static INTERFACE
  $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include/all>
  $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)

set(targets kwutils_static kwutils_server)
if(TARGET kwautomation)
  target_link_libraries(kwutils_static PUBLIC kwautomation)
  list(APPEND targets kwautomation)
endif()
target_link_libraries(kwutils_static PUBLIC ${CMAKE_DL_LIBS})
if(KW_SYSTEM STREQUAL "linux")
  # The libraries lie side by side, the tool finds them from its own place.
  set_target_properties(kwutils_server PROPERTIES INSTALL_RPATH "$ORIGIN")
endif()
if(TARGET kwutils_tool)
  file(RELATIVE_PATH libraries_from_tool /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
  set_target_properties(kwutils_tool PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries_from_tool}")
  install(TARGETS kwutils_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
endif()
set_target_properties(kwutils_server PROPERTIES EXPORT_NAME automation)

install(TARGETS ${targets} EXPORT kwutils
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kwutils COMPONENT development)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/kwutils)
install(EXPORT kwutils NAMESPACE kwutils:: DESTINATION ${package_folder} COMPONENT development)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/kwutils-config.cmake.in
  ${PROJECT_BINARY_DIR}/kwutils-config.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kwutils-config-version.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kwutils-config.cmake
  ${PROJECT_BINARY_DIR}/kwutils-config-version.cmake DESTINATION ${package_folder}
  COMPONENT development)
# Relative to the file itself, so that what is installed can be moved.
file(RELATIVE_PATH KW_PREFIX_FROM_PC /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
configure_file(${CMAKE_CURRENT_LIST_DIR}/kwutils.pc.in ${PROJECT_BINARY_DIR}/kwutils.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kwutils.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
  COMPONENT development)

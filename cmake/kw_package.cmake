# The Debian packages: "cpack -G DEB" in the build folder makes one of each component.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kwutils)
set(CPACK_PACKAGE_CONTACT "the kwUtils authors <kwutils@localhost>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development tool)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The library that the others link is found where it was built: it is not installed yet.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
# The library's package tells what programs that link it depend on, and has the loader's list made
# anew.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

set(library_package libkwutils${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/debian/triggers)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
  "The automation library: eight classes that any program can create by name and\n\
call through slots or late-bound.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkwutils-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
  "Headers and the static library of the typed C++ API, for CMake and pkg-config.")
set(CPACK_DEBIAN_TOOL_PACKAGE_NAME kwutils)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION utils)
set(CPACK_COMPONENT_TOOL_DEPENDS runtime)
set(CPACK_COMPONENT_TOOL_DESCRIPTION
  "The command-line tool: lists, reads and changes keyed entity files.")

set(documents ${CMAKE_INSTALL_DATAROOTDIR}/doc)
# The packages alone have these: a plain "cmake --install" leaves them out.
set(copyright ${PROJECT_SOURCE_DIR}/packaging/debian/copyright)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(changelog ${PROJECT_BINARY_DIR}/changelog.Debian)
configure_file(${PROJECT_SOURCE_DIR}/packaging/debian/changelog.in ${changelog} @ONLY)
execute_process(COMMAND gzip --best --no-name --force ${changelog} COMMAND_ERROR_IS_FATAL ANY)
foreach(part IN ITEMS runtime:${library_package} development:libkwutils-dev tool:kwutils)
  string(REPLACE ":" ";" part ${part})
  list(GET part 0 component)
  list(GET part 1 package)
  install(FILES ${copyright} ${changelog}.gz DESTINATION ${documents}/${package} COMPONENT ${component}
    EXCLUDE_FROM_ALL)
endforeach()
include(CPack)

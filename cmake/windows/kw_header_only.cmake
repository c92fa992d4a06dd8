# kw_header_only(TARGET FOLDER HEADER): a library of headers alone that is installed for the building
# machine. Its folder is shown to the cross compiler by itself, not with the machine's own headers.
function(kw_header_only target folder header)
  find_path(KW_${folder}_HEADERS ${folder}/${header} PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set(view ${PROJECT_BINARY_DIR}/include/header_only)
  file(MAKE_DIRECTORY ${view})
  file(CREATE_LINK ${KW_${folder}_HEADERS}/${folder} ${view}/${folder} SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED)
  target_include_directories(${target} SYSTEM INTERFACE ${view})
endfunction()

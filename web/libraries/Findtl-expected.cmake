# tl::expected for the browser: the headers that are installed, which are the same everywhere, and no others beside them.
set(headers ${PROJECT_BINARY_DIR}/headers/tl-expected)
file(MAKE_DIRECTORY ${headers})
file(CREATE_LINK /usr/include/tl ${headers}/tl SYMBOLIC)
if(NOT TARGET tl::expected)
  add_library(tl::expected INTERFACE IMPORTED GLOBAL)
  target_include_directories(tl::expected SYSTEM INTERFACE ${headers})
endif()
set(tl-expected_FOUND TRUE)

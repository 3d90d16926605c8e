# RapidJSON for the browser: the headers that are installed, which are the same everywhere, and no others beside them.
set(headers ${PROJECT_BINARY_DIR}/headers/rapidjson)
file(MAKE_DIRECTORY ${headers})
file(CREATE_LINK /usr/include/rapidjson ${headers}/rapidjson SYMBOLIC)
include_directories(SYSTEM ${headers}) # as where it is installed, no target names it
set(RapidJSON_FOUND TRUE)

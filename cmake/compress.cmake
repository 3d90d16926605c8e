# Manuals and change logs are compressed in a package, without a time in them.
set(root ${CPACK_TEMPORARY_DIRECTORY})
file(GLOB_RECURSE texts ${root}/*.1 ${root}/changelog ${root}/changelog.Debian)
foreach(text IN LISTS texts)
  execute_process(COMMAND gzip -9n ${text} COMMAND_ERROR_IS_FATAL ANY)
endforeach()

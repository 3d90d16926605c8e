# mivo_bench(<name> SOURCES ... USES <target>...): one benchmark program, <name>_bench, which bench/run runs and puts into
# its table. A benchmark whose name begins with "floor" is what the others of its program are held against, at the same
# number of records (the last argument).
function(mivo_bench name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;USES")
  add_executable(${name}_bench ${PROJECT_SOURCE_DIR}/bench/support/main.cpp ${arg_SOURCES})
  target_link_libraries(${name}_bench PRIVATE mivo_warnings ${arg_USES} adapters::system bench::support)
  set_target_properties(${name}_bench PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/benches)
  add_dependencies(benches ${name}_bench)
endfunction()

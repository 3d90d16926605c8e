# mivo_fuzz(<name> SOURCES ... USES <target>... CORPUS <folder>): one parser under random input. The sources define
# LLVMFuzzerTestOneInput. Every build replays the committed corpus as the test fuzz.<name>; the fuzz preset also makes
# the libFuzzer program <name>_fuzz, to be run as `<name>_fuzz NEW_INPUTS CORPUS`.
function(mivo_fuzz name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "CORPUS" "SOURCES;USES")
  add_executable(${name}_replay ${arg_SOURCES} ${PROJECT_SOURCE_DIR}/tests/fuzz/replay.cpp)
  target_link_libraries(${name}_replay PRIVATE mivo_warnings ${arg_USES})
  add_test(NAME fuzz.${name} COMMAND ${name}_replay ${CMAKE_CURRENT_SOURCE_DIR}/${arg_CORPUS})
  set_tests_properties(fuzz.${name} PROPERTIES LABELS once)
  if(MIVO_FUZZ)
    add_executable(${name}_fuzz ${arg_SOURCES})
    target_link_libraries(${name}_fuzz PRIVATE mivo_warnings ${arg_USES})
    target_link_options(${name}_fuzz PRIVATE -fsanitize=fuzzer)
  endif()
endfunction()

# mivo_test(<name> [ONCE] SOURCES ... USES <target>...): one test program, <name>_test, one ctest entry per program so that
# a run of all stays quick; `<name>_test --gtest_filter=` runs a single row. ONCE is for what no zone and no language can
# change: the second pass of ./test leaves it out.
function(mivo_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "ONCE" "" "SOURCES;USES")
  add_executable(${name}_test ${arg_SOURCES})
  target_link_libraries(${name}_test PRIVATE mivo_warnings ${arg_USES} GTest::gmock GTest::gtest_main)
  target_precompile_headers(${name}_test REUSE_FROM tests_support)
  add_test(NAME ${name} COMMAND ${name}_test)
  if(arg_ONCE)
    set_tests_properties(${name} PROPERTIES LABELS once)
  endif()
endfunction()

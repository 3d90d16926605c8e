# Warnings and instrumentation that every target of this build shares; never exported.
add_library(mivo_warnings INTERFACE)
target_compile_options(mivo_warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(MIVO_WARNINGS_AS_ERRORS)
  target_compile_options(mivo_warnings INTERFACE -Werror)
endif()

set(MIVO_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize= takes them")
if(MIVO_SANITIZE)
  add_compile_options(-fsanitize=${MIVO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${MIVO_SANITIZE})
endif()

option(MIVO_COVERAGE "Count which lines the tests reach" OFF)
if(MIVO_COVERAGE)
  add_compile_options(--coverage -fprofile-update=atomic)
  add_link_options(--coverage)
endif()

# Warnings and instrumentation that every target of this build shares; never exported.
add_library(mivo_warnings INTERFACE)
target_compile_options(mivo_warnings INTERFACE -Wall -Wextra -Wpedantic)
if(NOT CMAKE_UNITY_BUILD) # there a file sees what another one has for itself
  target_compile_options(mivo_warnings INTERFACE -Wshadow)
endif()
target_compile_options(mivo_warnings INTERFACE -Wconversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND (MIVO_SANITIZE OR NOT CMAKE_BUILD_TYPE STREQUAL "Debug"))
  # As soon as it optimises, GCC 12 and 14 take variants and optionals that are copied or moved for uninitialised, and
  # GCC 12 takes `"a" + text` for a copy onto itself.
  target_compile_options(mivo_warnings INTERFACE -Wno-maybe-uninitialized)
  if(CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(mivo_warnings INTERFACE -Wno-restrict)
  endif()
endif()
if(CMAKE_CXX_COMPILER_ID MATCHES Clang)
  # The stable_sort of GCC 12's library calls what that library deprecates.
  target_compile_options(mivo_warnings INTERFACE -Wno-deprecated-declarations)
endif()
if(MIVO_WEB)
  # Nothing there is larger than 32 bits can say.
  target_compile_options(mivo_warnings INTERFACE -Wno-shorten-64-to-32)
endif()
if(MIVO_WARNINGS_AS_ERRORS)
  target_compile_options(mivo_warnings INTERFACE -Werror)
endif()

set(MIVO_SANITIZE "" CACHE STRING "Sanitizers, as -fsanitize= takes them")
option(MIVO_COVERAGE "Count which lines the tests reach" OFF)
set(MIVO_INSTRUMENTATION "")
if(MIVO_SANITIZE)
  list(APPEND MIVO_INSTRUMENTATION -fsanitize=${MIVO_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
endif()
if(MIVO_SANITIZE MATCHES thread AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
  add_compile_options(-Wno-tsan) # Asio's fences, which the sanitizer does not follow
endif()
if(MIVO_COVERAGE)
  list(APPEND MIVO_INSTRUMENTATION --coverage -fprofile-update=atomic)
endif()
if(MIVO_FUZZ)
  list(APPEND MIVO_INSTRUMENTATION -fsanitize=fuzzer-no-link)
endif()
add_compile_options(${MIVO_INSTRUMENTATION})
add_link_options(${MIVO_INSTRUMENTATION})

# There are many test programs to link; this takes a fifth of the time.
find_program(MIVO_MOLD mold)
if(MIVO_MOLD AND CMAKE_BUILD_TYPE STREQUAL "Debug")
  add_link_options(-fuse-ld=mold)
endif()

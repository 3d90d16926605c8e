# The WebAssembly build: Clang 19, WASI's C library, and the C++ library that web/toolchain/build makes.
execute_process(
  COMMAND ${CMAKE_CURRENT_LIST_DIR}/build
  OUTPUT_VARIABLE MIVO_WEB_LIBRARY
  ERROR_VARIABLE refusal
  OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_STRIP_TRAILING_WHITESPACE
  RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "${refusal}")
endif()

set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_C_COMPILER clang-19)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_C_COMPILER_TARGET wasm32-wasi)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_AR llvm-ar-19)
set(CMAKE_RANLIB llvm-ranlib-19)

set(CMAKE_C_FLAGS_INIT "-ffunction-sections -fdata-sections")
set(CMAKE_CXX_FLAGS_INIT "${CMAKE_C_FLAGS_INIT} -fwasm-exceptions -nostdinc++")
set(CMAKE_CXX_STANDARD_INCLUDE_DIRECTORIES
    ${MIVO_WEB_LIBRARY}/include /usr/lib/llvm-19/include/wasm32-wasi/c++/v1)
# The linker makes code of what was left for it to optimise, and is to know exceptions then. Unless it is told not to
# optimise, which the linker does not care about, the compiler hands the module to whatever wasm-opt is installed, and
# Debian 12's is too old for it.
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-O0 -mexec-model=reactor -nostdlib++ -Wl,--gc-sections -Wl,-mllvm,-wasm-enable-eh -Wl,-mllvm,-exception-model=wasm")
set(CMAKE_CXX_STANDARD_LIBRARIES "${MIVO_WEB_LIBRARY}/lib/libc++.a")

# What is installed on this machine is made for this machine.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_FIND_ROOT_PATH ${MIVO_WEB_LIBRARY})
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
list(APPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR}/../libraries)

// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "host/frontend/ActionJson.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto action = mivo::host::readAction({reinterpret_cast<const char*>(data), size});
  if (!action) {
    if (action.error().find('\n') != std::string::npos) std::abort();
    return 0;
  }
  if (mivo::host::readAction(mivo::host::writeAction(*action)) != action) std::abort();
  return 0;
}

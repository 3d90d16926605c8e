// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "mivo/model/UUID.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto id = mivo::parseUUID(std::string_view{reinterpret_cast<const char*>(data), size});
  if (id && mivo::parseUUID(mivo::text(*id)) != id) std::abort();
  return 0;
}

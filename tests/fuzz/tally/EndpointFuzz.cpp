// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "tally/net/Endpoint.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo::tally;
  const auto endpoint = parseEndpoint({reinterpret_cast<const char*>(data), size});
  if (endpoint && parseEndpoint(describe(*endpoint)) != endpoint) std::abort();
  return 0;
}

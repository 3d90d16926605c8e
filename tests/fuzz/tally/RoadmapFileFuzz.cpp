// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include "tally/request/CounterName.h"
#include "tally/server/Roadmap.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo::tally;
  const std::string text{reinterpret_cast<const char*>(data), size};
  try {
    const auto roadmap = readRoadmap(text);
    if (*roadmap.text != text) std::abort();
    for (const auto& id : *roadmap.ids)
      if (faultOfCounterName("any/feature" + id)) std::abort();
  } catch (const std::exception& error) {
    if (std::string_view{error.what()}.empty()) std::abort();
  }
  return 0;
}

// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

#include "tally/request/CounterName.h"
#include "tally/store/Transfer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo::tally;
  std::istringstream in{std::string{reinterpret_cast<const char*>(data), size}};
  Counts counts;
  try {
    counts = readCounts(in, "c.jsonl");
  } catch (const std::runtime_error& error) {
    if (!std::string_view{error.what()}.starts_with("c.jsonl:")) std::abort();
    return 0;
  }
  for (const auto& [counter, count] : counts)
    if (faultOfCounterName(counter)) std::abort();
  std::stringstream again;
  writeCounts(again, counts);
  if (readCounts(again, "again.jsonl") != counts) std::abort();
  return 0;
}

// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <string>

#include "adapters/json/NlohmannDecoder.h"
#include "mivo/roadmap/RoadmapFeatureVotingCount.h"

// What the apps read of whatever answers at the server's address.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    const std::string text{reinterpret_cast<const char*>(data), size};
    const auto count = mivo::RoadmapFeatureVotingCount::decoded(mivo::adapters::NlohmannDecoder{}.decoded(text));
    if (mivo::RoadmapFeatureVotingCount::decoded(count.encoded()) != count) std::abort();
  } catch (const std::exception& error) {
    if (*error.what() == '\0') std::abort();
  }
  return 0;
}

// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/history/WeightsCsv.h"
#include "tests/support/FixedClients.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto zone = mivo::adapters::loadTimeZone("Australia/Lord_Howe").value();
  const mivo::tests::CountingUUIDs ids;
  const auto samples =
      mivo::host::readWeightsCsv({reinterpret_cast<const char*>(data), size}, "w.csv", *zone, std::nullopt, ids);
  if (!samples) {
    if (describe(samples.error()).find('\n') != std::string::npos) std::abort();
    return 0;
  }
  if (!std::ranges::is_sorted(*samples, {}, &mivo::BodyWeightSample::date)) std::abort();
  for (const auto& sample : *samples)
    if (!mivo::isRepresentable(sample.date) || !(sample.weightInKg > 0 && sample.weightInKg <= 1000)) std::abort();
  return 0;
}

// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/history/FastsCsv.h"
#include "tests/support/FixedClients.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto zone = mivo::adapters::loadTimeZone("America/Sao_Paulo").value();
  const mivo::tests::CountingUUIDs ids;
  const auto table = mivo::host::readFastsCsv({reinterpret_cast<const char*>(data), size}, "f.csv", *zone, ids);
  if (!table) {
    if (describe(table.error()).find('\n') != std::string::npos) std::abort();
    return 0;
  }
  std::size_t running = 0;
  for (const auto& [fast, note] : table->fasts) {
    running += fast.finished ? 0 : 1;
    const bool isSound = mivo::isRepresentable(fast.start) && fast.goalSeconds >= 0 &&
                         (!fast.finished || mivo::isRepresentable(fast.finished->end));
    if (!isSound) std::abort();
  }
  if (running > 1) std::abort();
  return 0;
}

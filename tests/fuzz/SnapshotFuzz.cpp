// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "host/history/Snapshot.h"
#include "tests/support/FixedClients.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const mivo::tests::CountingUUIDs ids;
  auto history = mivo::host::readSnapshot({reinterpret_cast<const char*>(data), size}, "a.json", ids);
  if (!history) {
    if (describe(history.error()).find('\n') != std::string::npos) std::abort();
    return 0;
  }
  history->endsBeforeStart.reset();  // is about the file, not the records
  auto again = mivo::host::readSnapshot(mivo::host::writeSnapshot(*history), "a.json", ids);
  if (again) again->endsBeforeStart.reset();
  if (again != history) std::abort();
  return 0;
}

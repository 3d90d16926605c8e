// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/dates/DateText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto zone = mivo::adapters::loadTimeZone("Pacific/Apia").value();
  const auto text = mivo::host::parseDateText({reinterpret_cast<const char*>(data), size});
  const auto date = text ? mivo::host::instant(*text, *zone) : std::nullopt;
  if (!date) return 0;
  const std::string written = mivo::host::rfc3339(*date);
  const auto again = mivo::host::parseDateText(written);
  if (!again || mivo::host::instant(*again) != date) std::abort();
  return 0;
}

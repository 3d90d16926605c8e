// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/dates/SpokenDate.h"
#include "host/dates/WrittenDate.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mivo::host;
  static const auto zone = mivo::adapters::loadTimeZone("Pacific/Apia").value();
  const std::string_view bytes{reinterpret_cast<const char*>(data), size};
  if (const auto time = readWrittenTime(bytes); time && time->sinceMidnight >= std::chrono::days{1}) std::abort();
  const SpokenFrame frame{mivo::dateSince1970(1795613420), *zone, DateOrder::monthFirst};
  const auto spoken = readSpokenDate(bytes, englishDateNames(), frame);
  if (spoken && !mivo::isRepresentable(*spoken)) std::abort();
  const auto date = readWrittenDate(bytes);
  if (!date) return 0;
  if (!date->dayFirst && !date->monthFirst) std::abort();
  const auto plain = parseDateText(bytes);
  for (const DateOrder order : {DateOrder::dayFirst, DateOrder::monthFirst}) {
    const auto text = ordered(*date, order);
    const auto when = text ? instant(*text, *zone) : std::nullopt;
    if (plain && when != instant(*plain, *zone)) std::abort();  // the strict form means the same everywhere
    if (!when) continue;
    const std::string written = rfc3339(*when);
    const auto again = readWrittenDate(written);
    if (!again || instant(ordered(*again, order).value()) != when) std::abort();
  }
  return 0;
}

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "mivo/platform/Formatters.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::host {

/// How many records there are, or were brought along, or are in a backup.
struct RecordCounts {
  std::int64_t fasts = 0, weights = 0;
  bool operator==(const RecordCounts&) const = default;
};

// In the user's words.

/// "12 fasts"
std::string fastCountText(std::int64_t count, const TextLookup& texts, const NumberFormatter& numbers);
/// "1 weight"
std::string weightCountText(std::int64_t count, const TextLookup& texts, const NumberFormatter& numbers);
/// "12 fasts, 1 weight"
std::string countText(const RecordCounts& counts, const TextLookup& texts, const NumberFormatter& numbers);
/// The same without what there is none of: "12 fasts"; both where there is nothing.
std::string shortCountText(const RecordCounts& counts, const TextLookup& texts, const NumberFormatter& numbers);

}  // namespace mivo::host

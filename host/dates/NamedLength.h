// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace mivo::host {

/// The unit of a length that a text ends with: "h", "hrs", "hours", "min", "seconds" and the like.
struct LengthUnit {
  std::string_view name;
  double seconds = 0;
};
std::optional<LengthUnit> lengthUnitAtEnd(std::string_view text);

/// A length in whole units, the larger ones first, in seconds: "16h 30m", "2 hours", "90min". Small letters. Nothing
/// for any other text.
std::optional<double> readNamedLength(std::string_view text);

}  // namespace mivo::host

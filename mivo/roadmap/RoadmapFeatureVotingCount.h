// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "mivo/platform/JSONValue.h"

namespace mivo {

/// The tally service's answer: {"value": 7}. A value that is missing or null is none.
struct RoadmapFeatureVotingCount {
  std::optional<std::int64_t> value;

  /// Throws DecodingError where the answer is no object, or its value no whole number of 64 bits.
  static RoadmapFeatureVotingCount decoded(const JSONValue& answer);
  /// Without a value an empty object.
  JSONValue encoded() const;

  bool operator==(const RoadmapFeatureVotingCount&) const = default;
};

}  // namespace mivo

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <stop_token>

#include "mivo/roadmap/RoadmapFeature.h"

namespace mivo {

/// Counts the votes for the features of a roadmap. Nothing is thrown. Thread: any; all operations block, so they are
/// called from tasks only, and beside each other for different features.
class FeatureVoter {
 public:
  virtual ~FeatureVoter() = default;
  /// The votes so far; 0 where they are not known.
  virtual std::int64_t fetch(const RoadmapFeature& feature, std::stop_token stop) const = 0;
  /// Adds a vote, or takes one back: the count after it, or nothing where the vote did not get through. There is no way
  /// to stop it, since nobody would know then whether it counted.
  virtual std::optional<std::int64_t> vote(const RoadmapFeature& feature) const = 0;
  virtual std::optional<std::int64_t> unvote(const RoadmapFeature& feature) const = 0;
};

}  // namespace mivo

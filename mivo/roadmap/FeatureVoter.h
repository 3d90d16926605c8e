// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "mivo/platform/StopToken.h"
#include "mivo/roadmap/RoadmapFeature.h"

namespace mivo {

/// Counts the votes for the features of a roadmap. Nothing is thrown. Each operation calls back once, on any thread,
/// and maybe before it returns. Thread: any; they may take their time before they return, so they are called from tasks
/// only, and beside each other for different features.
class FeatureVoter {
 public:
  using Count = std::function<void(std::int64_t count)>;
  using VoteCount = std::function<void(std::optional<std::int64_t> count)>;

  virtual ~FeatureVoter() = default;
  /// The votes so far; 0 where they are not known.
  virtual void fetch(const RoadmapFeature& feature, StopToken stop, Count completion) const = 0;
  /// Adds a vote, or takes one back: the count after it, or nothing where the vote did not get through. There is no way
  /// to stop it, since nobody would know then whether it counted.
  virtual void vote(const RoadmapFeature& feature, VoteCount completion) const = 0;
  virtual void unvote(const RoadmapFeature& feature, VoteCount completion) const = 0;
};

}  // namespace mivo

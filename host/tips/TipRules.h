// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace mivo::host {

/// What the rules of the tips look at.
struct TipFacts {
  std::int64_t finishedFasts = 0, weights = 0;
  bool hasGoalWeight = false, hasVoted = false;
  bool operator==(const TipFacts&) const = default;
};

/// A tip and when it is offered. The texts are English, and keys of the message catalogues.
struct TipRule {
  std::string_view id, title, message;
  int priority;     ///< of those that may be shown, the highest is offered first
  int launchCount;  ///< in how many runs of the app it is shown, unless it is dismissed before
  bool (*isEligible)(const TipFacts&);
};

/// The tips that the app ships.
std::span<const TipRule> shippedTips();

}  // namespace mivo::host

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "mivo/platform/Client.h"
#include "mivo/platform/UserDefaults.h"
#include "mivo/roadmap/FeatureVoter.h"

namespace mivo {

/// What this user voted for, kept in user defaults. Thread: any.
struct RoadmapVotes {
  Client<UserDefaults> defaults;
  std::string namespaceName = "roadmap";

  bool isVoted(std::string_view featureID) const;
  void setVoted(std::string_view featureID, bool isVoted) const;
  /// Whether a vote of this user ever got through, taken back since or not.
  bool hasVoted() const;

  /// Sends a vote, or takes it back, and remembers it: before it is sent, so that a program that ends in between cannot
  /// vote twice, and no longer where it did not get through. `completion` gets what the voter says.
  void send(bool isVote, const RoadmapFeature& feature, const FeatureVoter& voter,
            FeatureVoter::VoteCount completion) const;

 private:
  std::string key(std::string_view featureID) const;
  std::string hasVotedKey() const;
};

}  // namespace mivo

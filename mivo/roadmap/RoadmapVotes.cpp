// SPDX-License-Identifier: MIT
#include "mivo/roadmap/RoadmapVotes.h"

namespace mivo {

bool RoadmapVotes::isVoted(std::string_view featureID) const { return defaults->boolean(key(featureID), false); }

void RoadmapVotes::setVoted(std::string_view featureID, bool isVoted) const {
  defaults->setValue(key(featureID), isVoted ? std::optional<UserDefaults::Value>{true} : std::nullopt);
}

std::optional<std::int64_t> RoadmapVotes::send(bool isVote, const RoadmapFeature& feature,
                                               const FeatureVoter& voter) const {
  setVoted(feature.id, isVote);
  const auto count = isVote ? voter.vote(feature) : voter.unvote(feature);
  if (!count) setVoted(feature.id, !isVote);
  if (count && isVote) defaults->setValue(hasVotedKey(), true);
  return count;
}

bool RoadmapVotes::hasVoted() const { return defaults->boolean(hasVotedKey(), false); }

std::string RoadmapVotes::hasVotedKey() const { return namespaceName + ".hasVoted"; }

std::string RoadmapVotes::key(std::string_view featureID) const {
  return namespaceName + ".vote." + std::string{featureID};
}

}  // namespace mivo

// SPDX-License-Identifier: MIT
#include "mivo/roadmap/RoadmapVotes.h"

#include <utility>

namespace mivo {

bool RoadmapVotes::isVoted(std::string_view featureID) const { return defaults->boolean(key(featureID), false); }

void RoadmapVotes::setVoted(std::string_view featureID, bool isVoted) const {
  defaults->setValue(key(featureID), isVoted ? std::optional<UserDefaults::Value>{true} : std::nullopt);
}

void RoadmapVotes::send(bool isVote, const RoadmapFeature& feature, const FeatureVoter& voter,
                        FeatureVoter::VoteCount completion) const {
  setVoted(feature.id, isVote);
  const auto remember = [votes = *this, isVote, id = feature.id,
                         completion = std::move(completion)](std::optional<std::int64_t> count) {
    if (!count) votes.setVoted(id, !isVote);
    if (count && isVote) votes.defaults->setValue(votes.hasVotedKey(), true);
    completion(count);
  };
  isVote ? voter.vote(feature, remember) : voter.unvote(feature, remember);
}

bool RoadmapVotes::hasVoted() const { return defaults->boolean(hasVotedKey(), false); }

std::string RoadmapVotes::hasVotedKey() const { return namespaceName + ".hasVoted"; }

std::string RoadmapVotes::key(std::string_view featureID) const {
  return namespaceName + ".vote." + std::string{featureID};
}

}  // namespace mivo

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "mivo/roadmap/FeatureVoter.h"

namespace mivo {

/// Votes over the tally service whose address stands in the current dependencies. Each call is one request; what
/// happens is logged, a line each:
///
///     Successfully voted, count is now: Optional(7)
///     Voting failed: https://tally.example/add/app/feature7?delta=1: the server answered 503
///
/// An answer without a value reads "nil"; a failed fetch logs the error itself on a line before its sentence.
struct FeatureVoterTallyAPI final : FeatureVoter {
  /// Under which all counters of one app are kept. (Plain "namespace" is a word of the language.)
  std::string namespaceName;

  explicit FeatureVoterTallyAPI(std::string ownNamespace) : namespaceName{std::move(ownNamespace)} {}

  void fetch(const RoadmapFeature& feature, StopToken stop, Count completion) const override;
  void vote(const RoadmapFeature& feature, VoteCount completion) const override;
  void unvote(const RoadmapFeature& feature, VoteCount completion) const override;

 private:
  void add(int delta, const RoadmapFeature& feature, VoteCount completion) const;
  std::string address(const char* operation, const RoadmapFeature& feature) const;
};

}  // namespace mivo

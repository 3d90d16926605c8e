// SPDX-License-Identifier: MIT
#include "mivo/roadmap/RoadmapFeedbackView.h"

#include <memory>

#include "mivo/platform/Dependencies.h"
#include "mivo/roadmap/FeatureVoterTallyAPI.h"

namespace mivo {
namespace {

constexpr std::string_view filePath = "/data/roadmap-mivo.json";

}  // namespace

RoadmapConfiguration RoadmapFeedbackView::configuration() {
  const Dependencies& dependencies = currentDependencies();
  return {.roadmapJSONURL = dependencies.servers.roadmap + std::string{filePath},
          .request = std::nullopt,
          .shippedRoadmap = dependencies.shippedRoadmap,
          .voter = std::make_shared<const FeatureVoterTallyAPI>(dependencies.bundleIdentifier),
          .namespaceName = std::nullopt,
          .style = RoadmapStyle::standard,
          .shuffled = true,
          .sorting = nullptr,
          .allowVotes = !dependencies.bundleIdentifier.empty(),
          .allowSearching = false,
          .allowsFilterByStatus = true};
}

}  // namespace mivo

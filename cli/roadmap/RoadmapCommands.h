// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <tl/expected.hpp>

#include "cli/network/NetworkOptions.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::cli {

/// What a command prints, and its exit status.
struct Outcome {
  int status = 0;
  std::string output;                  ///< for standard output
  std::optional<std::string> warning;  ///< one line for standard error
};

/// The clients of a run that asks a tally service: the network, the user's language, and the votes remembered in the
/// app's own settings. Or a sentence on the locale that was asked for.
tl::expected<std::shared_ptr<const Dependencies>, std::string> roadmapDependencies(const RoadmapOptions& options);

/// The features with the most votes first, of equal ones in the file's order.
Outcome listRoadmap(const RoadmapOptions& options, const std::shared_ptr<const Dependencies>& dependencies);

/// Votes for a feature, or takes the vote back. Asks nobody where the user did so already.
Outcome sendVote(bool isVote, const RoadmapOptions& options, const std::shared_ptr<const Dependencies>& dependencies);

}  // namespace mivo::cli

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "mivo/platform/Client.h"
#include "mivo/roadmap/FeatureVoter.h"

namespace mivo {

/// The templates of the list's look.
enum class RoadmapStyle { standard };

/// How the roadmap component is set up.
struct RoadmapConfiguration {
  using Sorting = bool (*)(const RoadmapFeature& one, const RoadmapFeature& other);

  std::string roadmapJSONURL;
  std::optional<std::string> request;  ///< asked instead of that address
  std::string shippedRoadmap =
      {};  ///< the text of a file that is shown, without votes, where that one cannot be loaded
  Client<FeatureVoter> voter;
  std::optional<std::string> namespaceName;  ///< under which the component remembers votes; it has a default
  RoadmapStyle style = RoadmapStyle::standard;
  bool shuffled = false;  ///< a random order on every load
  Sorting sorting = nullptr;
  bool allowVotes = true;
  bool allowSearching = true;
  bool allowsFilterByStatus = true;

  bool operator==(const RoadmapConfiguration&) const = default;
};

/// The roadmap screen around the component: its set-up, and the button below the list that opens the host's feedback
/// sheet.
struct RoadmapFeedbackView {
  static constexpr std::string_view footerText = translatable("Have more ideas? Please contact me.");

  bool showFeedback = false;  ///< cleared when the sheet is dismissed

  void didTapFooter() { showFeedback = true; }
  void didDismissFeedback() { showFeedback = false; }

  /// From the servers and the bundle identifier of the current dependencies. An app without an identifier has no
  /// counters of its own, so it shows the list without votes.
  static RoadmapConfiguration configuration();
};

}  // namespace mivo

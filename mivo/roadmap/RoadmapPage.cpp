// SPDX-License-Identifier: MIT
#include "mivo/roadmap/RoadmapPage.h"

namespace mivo {
namespace {

using State = RoadmapListFeature::State;

std::vector<RoadmapFilter> filters(const State& state, const TextLookup& texts) {
  const auto present = statuses(state);
  const auto& chosen = *state.status;
  std::vector<RoadmapFilter> all;
  if (present.empty()) return all;
  all.push_back({.name = texts.text(RoadmapTexts::allStatuses), .status = std::nullopt, .isChosen = !chosen});
  for (const std::string& status : present)
    all.push_back({.name = statusText(status, texts), .status = status, .isChosen = chosen == status});
  return all;
}

RoadmapNotice notice(const State& state, bool hasItems, const TextLookup& texts) {
  if (state.phase == RoadmapPhase::failed)
    return {.hasFailed = true,
            .title = texts.text(hasItems ? RoadmapTexts::votesNotLoaded : RoadmapTexts::couldNotBeLoaded),
            .text = texts.text(hasItems ? RoadmapTexts::shownAsShipped : RoadmapTexts::checkConnection),
            .button = texts.text(RoadmapTexts::tryAgain)};
  if (state.phase == RoadmapPhase::loaded && !hasItems) return {.title = texts.text(RoadmapTexts::isEmpty)};
  return {};
}

RoadmapItem item(const RoadmapRow& row, bool allowsVotes, const TextLookup& texts, const NumberFormatter& numbers) {
  const RoadmapFeature& feature = row.feature;
  RoadmapItem shown{.id = feature.id,
                    .title = feature.title,
                    .text = feature.description,
                    .status = feature.status,
                    .statusName = statusText(feature.status, texts),
                    .isVoted = row.isVoted};
  if (!allowsVotes) return shown;
  shown.hasVotes = true;
  shown.count = numbers.string(row.count);
  shown.spokenVote = filledIn(texts.text("Vote for {1}"), {feature.title}) + ", " + shown.count;
  shown.isOpen = isOpenForVotes(feature);
  return shown;
}

}  // namespace

RoadmapPage composeRoadmap(const State& state, bool allowsVotes, const TextLookup& texts,
                           const NumberFormatter& numbers) {
  const RoadmapPhase phase = state.phase;
  RoadmapPage page{.title = texts.text(RoadmapTexts::title),
                   .filters = filters(state, texts),
                   .unsentVote = state.unsentVote->has_value() ? texts.text(RoadmapTexts::voteNotSent) : "",
                   .isLoading = (phase == RoadmapPhase::idle || phase == RoadmapPhase::loading) && state.rows->empty(),
                   .footer = texts.text(RoadmapFeedbackView::footerText)};
  const bool showsVotes = allowsVotes && phase == RoadmapPhase::loaded;
  for (const RoadmapRow& row : visibleRows(state)) page.items.push_back(item(row, showsVotes, texts, numbers));
  page.notice = notice(state, !page.items.empty(), texts);
  return page;
}

}  // namespace mivo

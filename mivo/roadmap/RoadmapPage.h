// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "mivo/model/Record.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/roadmap/RoadmapListFeature.h"

namespace mivo {

/// A status to choose from; all of them where it has none.
struct RoadmapFilter {
  std::string name;
  std::optional<std::string> status;
  bool isChosen = false;
  bool operator==(const RoadmapFilter&) const = default;
};

template <RecordOf<RoadmapFilter> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [name, status, isChosen] = record;
  visit("name", name);
  visit("status", status);
  visit("isChosen", isChosen);
}

/// One feature that may come.
struct RoadmapItem {
  std::string id = {}, title = {}, text = {};
  std::string status = {}, statusName = {};  ///< as the file spells it, and for the user
  bool hasVotes = false;                     ///< whether votes are counted at all
  std::string count = {};                    ///< "12"; none without votes
  std::string spokenVote = {};               ///< "Vote for Water log, 12": the button for who does not see it
  bool isOpen = false;                       ///< whether the user may vote
  bool isVoted = false;
  bool operator==(const RoadmapItem&) const = default;
};

template <RecordOf<RoadmapItem> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [id, title, text, status, statusName, hasVotes, count, spokenVote, isOpen, isVoted] = record;
  visit("id", id);
  visit("title", title);
  visit("text", text);
  visit("status", status);
  visit("statusName", statusName);
  visit("hasVotes", hasVotes);
  visit("count", count);
  visit("spokenVote", spokenVote);
  visit("isOpen", isOpen);
  visit("isVoted", isVoted);
}

/// Said in place of the list, or above one that came with the app; no texts where the list is there.
struct RoadmapNotice {
  bool hasFailed = false;
  std::string title = {}, text = {}, button = {};
  bool operator==(const RoadmapNotice&) const = default;
};

template <RecordOf<RoadmapNotice> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [hasFailed, title, text, button] = record;
  visit("hasFailed", hasFailed);
  visit("title", title);
  visit("text", text);
  visit("button", button);
}

/// The screen of the roadmap.
struct RoadmapPage {
  std::string title = {};
  std::vector<RoadmapFilter> filters = {};  ///< none where there is nothing to choose
  std::string unsentVote = {};              ///< while a vote did not get through
  bool isLoading = false;
  RoadmapNotice notice = {};
  std::vector<RoadmapItem> items = {};  ///< of the chosen status
  std::string footer = {};              ///< on the button that opens the feedback sheet
  bool operator==(const RoadmapPage&) const = default;
};

template <RecordOf<RoadmapPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, filters, unsentVote, isLoading, notice, items, footer] = record;
  visit("title", title);
  visit("filters", filters);
  visit("unsentVote", unsentVote);
  visit("isLoading", isLoading);
  visit("notice", notice);
  visit("items", items);
  visit("footer", footer);
}

/// Every text, number and flag of the roadmap's screen. `allowsVotes` is the configuration's. Pure. Thread: any.
RoadmapPage composeRoadmap(const RoadmapListFeature::State& state, bool allowsVotes, const TextLookup& texts,
                           const NumberFormatter& numbers);

}  // namespace mivo

// SPDX-License-Identifier: MIT
#include "RoadmapModel.h"

#include <utility>

#include "mivo/platform/Dependencies.h"

namespace mivo::app {

RoadmapModel::RoadmapModel()
    : store{Feature::State{}, Feature{}, dependency(&Dependencies::mainQueue), dependency(&Dependencies::taskRunner)} {
  following =
      store.observe([this, allowsVotes = RoadmapFeedbackView::configuration().allowVotes,
                     texts = dependency(&Dependencies::texts), numbers = dependency(&Dependencies::numberFormatter)](
                        const Feature::State& state) { show(composeRoadmap(state, allowsVotes, *texts, *numbers)); });
  store.send(Feature::Action::onAppear{});
}

// Counts arrive one by one: rows that only say something new stay where they are.
void RoadmapModel::show(RoadmapPage composed) {
  if (shown == composed) return;
  shown = std::move(composed);
  rows.show(shown.items);
  carry(shown, *this);
}

void RoadmapModel::choose(int filter) {
  store.send(Feature::Action::didTapStatus{shown.filters[static_cast<std::size_t>(filter)].status});
}

void RoadmapModel::vote(int row) {
  store.send(Feature::Action::didTapVote{shown.items[static_cast<std::size_t>(row)].id});
}

}  // namespace mivo::app

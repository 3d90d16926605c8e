// SPDX-License-Identifier: MIT
#include "RoadmapModel.h"

namespace mivo::app {

RoadmapModel::RoadmapModel(const Dependencies& all)
    : store{Feature::State{}, Feature{}, all.mainQueue, all.taskRunner} {
  following = store.observe([this, allowsVotes = RoadmapFeedbackView::configuration().allowVotes, texts = all.texts,
                             numbers = all.numberFormatter](const Feature::State& state) {
    composed = composeRoadmap(state, allowsVotes, *texts, *numbers);
    show(composed);
  });
  store.send(Feature::Action::onAppear{});
}

void RoadmapModel::choose(int filter) {
  store.send(Feature::Action::didTapStatus{composed.filters[static_cast<std::size_t>(filter)].status});
}

void RoadmapModel::vote(int row) {
  store.send(Feature::Action::didTapVote{composed.items[static_cast<std::size_t>(row)].id});
}

}  // namespace mivo::app

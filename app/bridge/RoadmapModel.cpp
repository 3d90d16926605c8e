// SPDX-License-Identifier: MIT
#include "RoadmapModel.h"

#include "mivo/platform/Dependencies.h"

namespace mivo::app {

RoadmapModel::RoadmapModel()
    : store{Feature::State{}, Feature{}, dependency(&Dependencies::mainQueue), dependency(&Dependencies::taskRunner)} {
  following = store.observe([this, allowsVotes = RoadmapFeedbackView::configuration().allowVotes,
                             texts = dependency(&Dependencies::texts),
                             numbers = dependency(&Dependencies::numberFormatter)](const Feature::State& state) {
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

// SPDX-License-Identifier: MIT
#include "FastDraftModel.h"

#include <cmath>
#include <utility>

namespace mivo::app {

FastDraftModel::FastDraftModel(std::function<PageClients()> present, std::function<void(Action)> sends)
    : clients{std::move(present)}, send{std::move(sends)} {}

void FastDraftModel::follow(const host::AppFeature::State& state) {
  std::vector<Stamp> read{state.draft.stamp(), state.fasts.stamp(), state.now.stamp()};
  if (std::exchange(seen, read) == read) return;
  fasts = *state.fasts;
  draft = state.draft;
  retell();
}

void FastDraftModel::retell() {
  if (draft) show(composeFastSheet(*draft, fasts, clients()));
}

void FastDraftModel::setGoal(double chosen) {
  send(Action::didChangeDraftGoal{static_cast<std::int64_t>(std::llround(chosen))});
}

void FastDraftModel::remove() {
  if (!draft || !draft->before) return;
  const UUID id = draft->before->fast.id;
  send(Action::didDismissDraft{});
  send(Action::didDeleteFast{id});
}

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#include "FastDraftModel.h"

#include <cmath>
#include <utility>

namespace mivo::app {

void FastDraftModel::follow(const host::AppFeature::State& state) {
  std::vector<Stamp> read{state.draft.stamp(), state.fasts.stamp(), state.now.stamp()};
  if (std::exchange(seen, read) == read) return;
  retell();
}

void FastDraftModel::retell() {
  if (const auto& draft = *app.state().draft) show(composeFastSheet(*draft, *app.state().fasts, app.clients()));
}

void FastDraftModel::setGoal(double chosen) {
  app.send(AppAction::didChangeDraftGoal{static_cast<std::int64_t>(std::llround(chosen))});
}

void FastDraftModel::remove() {
  const auto& draft = *app.state().draft;
  if (!draft || !draft->before) return;
  const UUID id = draft->before->fast.id;
  app.send(AppAction::didDismissDraft{});
  app.send(AppAction::didDeleteFast{id});
}

}  // namespace mivo::app

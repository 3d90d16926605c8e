// SPDX-License-Identifier: MIT
#include "FastingModel.h"

#include <cmath>
#include <utility>

namespace mivo::app {

FastingModel::FastingModel(std::function<PageClients()> present, std::function<void(Action)> sends)
    : clients{std::move(present)}, send{std::move(sends)}, ended{clients, send}, edited{clients, send} {
  timer.setSingleShot(true);
  timer.setTimerType(Qt::PreciseTimer);
  connect(&timer, &QTimer::timeout, this, &FastingModel::tick);
}

void FastingModel::follow(const host::AppFeature::State& state) {
  ended.follow(state);
  edited.follow(state);
  std::vector<Stamp> read{state.fasts.stamp(), state.nextGoalSeconds.stamp(), state.now.stamp()};
  if (std::exchange(seen, read) == read) return;
  fasts = *state.fasts;
  facts = host::fastingPageFacts(fasts, state.nextGoalSeconds, state.now);
  tick();
}

void FastingModel::retell() {
  ended.retell();
  edited.retell();
  tick();
}

void FastingModel::setWatched(bool isNow) {
  if (std::exchange(watched, isNow) == isNow) return;
  Q_EMIT watchedChanged();
  tick();
}

void FastingModel::tick() {
  const auto present = clients();
  show(composeFastingPage(facts, present));
  timer.stop();
  if (const auto seconds = untilNextTick(facts, watched, present.now))
    timer.start(static_cast<int>(std::ceil(*seconds * 1000)) + 1);
}

void FastingModel::start() { send(Action::didTapStart{clients().now, facts.nextGoalSeconds}); }

void FastingModel::press() { isRunning ? send(Action::didTapStop{clients().now}) : start(); }

QString FastingModel::startProblem(double instant) const {
  return qString(host::startProblem(fasts, dateSince1970(instant), clients()));
}

void FastingModel::changeStart(double instant) { send(Action::didChangeStart{dateSince1970(instant)}); }

void FastingModel::changeGoal(double seconds) {
  send(Action::didChangeGoal{static_cast<std::int64_t>(std::llround(seconds))});
}

}  // namespace mivo::app

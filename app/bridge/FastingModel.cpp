// SPDX-License-Identifier: MIT
#include "FastingModel.h"

#include <cmath>
#include <utility>

namespace mivo::app {

FastingModel::FastingModel(AppLink to, QObject* parent)
    : mivo::app::FastingPageRecord{parent},
      app{std::move(to)},
      history{new FastHistoryModel{app, this}},
      draft{new FastDraftModel{app, this}} {
  timer.setSingleShot(true);
  timer.setTimerType(Qt::PreciseTimer);
  connect(&timer, &QTimer::timeout, this, &FastingModel::tick);
}

void FastingModel::follow(const host::AppFeature::State& state) {
  history->follow(state);
  draft->follow(state);
  std::vector<Stamp> read{state.fasts.stamp(), state.nextGoalSeconds.stamp(), state.now.stamp()};
  if (std::exchange(seen, read) == read) return;
  facts = host::fastingPageFacts(*state.fasts, state.nextGoalSeconds, state.now);
  tick();
}

void FastingModel::retell() {
  history->retell();
  draft->retell();
  tick();
}

void FastingModel::setWatched(bool isNow) {
  if (std::exchange(watched, isNow) == isNow) return;
  Q_EMIT watchedChanged();
  tick();
}

void FastingModel::tick() {
  const auto present = app.clients();
  show(composeFastingPage(facts, present));
  timer.stop();
  if (const auto seconds = untilNextTick(facts, watched, present.now))
    timer.start(static_cast<int>(std::ceil(*seconds * 1000)) + 1);
}

void FastingModel::start() { app.send(AppAction::didTapStart{app.clients().now, facts.nextGoalSeconds}); }

void FastingModel::press() { isRunning ? app.send(AppAction::didTapStop{app.clients().now}) : start(); }

QString FastingModel::startProblem(double instant) const {
  return qString(host::startProblem(*app.state().fasts, dateSince1970(instant), app.clients()));
}

void FastingModel::changeStart(double instant) { app.send(AppAction::didChangeStart{dateSince1970(instant)}); }

void FastingModel::changeGoal(double seconds) {
  app.send(AppAction::didChangeGoal{static_cast<std::int64_t>(std::llround(seconds))});
}

}  // namespace mivo::app

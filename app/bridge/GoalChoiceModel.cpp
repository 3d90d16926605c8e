// SPDX-License-Identifier: MIT
#include "GoalChoiceModel.h"

#include <cmath>
#include <utility>

namespace mivo::app {

GoalChoiceModel::GoalChoiceModel(std::function<PageClients()> present) : clients{std::move(present)} { begin(0); }

void GoalChoiceModel::begin(double goal) {
  entry = host::goalEntry(std::llround(goal));
  compose();
}

void GoalChoiceModel::pick(int place) { become(withUsualGoal(entry, static_cast<std::size_t>(place))); }

void GoalChoiceModel::openField() { become(withFieldOpen(entry)); }

void GoalChoiceModel::type(const QString& text) { become(withTypedGoal(entry, text.toStdString())); }

void GoalChoiceModel::tellProblem(const QString& sentence) {
  otherProblem = sentence.toStdString();
  compose();
}

void GoalChoiceModel::become(host::GoalEntry next) {
  const bool isOther = next.seconds != entry.seconds;
  entry = std::move(next);
  compose();
  if (isOther) Q_EMIT chosen(seconds);
}

void GoalChoiceModel::compose() { show(composeGoalChoice(entry, otherProblem, clients())); }

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>

#include <functional>
#include <string>

#include "app/records/Records.h"

namespace mivo::app {

/// A `host::GoalChoice`, and the entry that it is composed of.
class GoalChoiceModel : public mivo::app::GoalChoiceRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app makes them")

 public:
  explicit GoalChoiceModel(std::function<PageClients()> clients);

  /// Begins with a goal as it is, in seconds.
  Q_INVOKABLE void begin(double goal);
  Q_INVOKABLE void pick(int place);
  Q_INVOKABLE void openField();
  Q_INVOKABLE void type(const QString& text);
  /// What else is wrong with the goal.
  Q_INVOKABLE void tellProblem(const QString& sentence);

 Q_SIGNALS:
  /// Another goal than before, by the user.
  void chosen(double seconds);

 private:
  void become(host::GoalEntry next);
  void compose();

  std::function<PageClients()> clients;
  host::GoalEntry entry;
  std::string otherProblem;
};

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

#include "app/bridge/RecordRows.h"
#include "host/pages/GoalChoice.h"

namespace mivo::app {

/// A `host::GoalChoice`, and the entry that it is composed of.
class GoalChoiceModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app makes them")
  Q_PROPERTY(QString title MEMBER title NOTIFY titleChanged)
  Q_PROPERTY(double seconds MEMBER seconds NOTIFY secondsChanged)
  Q_PROPERTY(mivo::app::RecordRows* offers READ offers CONSTANT)
  Q_PROPERTY(QString customText MEMBER customText NOTIFY titleChanged)
  Q_PROPERTY(bool isTyped MEMBER isTyped NOTIFY isTypedChanged)
  Q_PROPERTY(QString fieldText MEMBER fieldText NOTIFY titleChanged)
  Q_PROPERTY(QString unit MEMBER unit NOTIFY titleChanged)
  Q_PROPERTY(QString example MEMBER example NOTIFY titleChanged)
  Q_PROPERTY(QString hint MEMBER hint NOTIFY problemChanged)
  Q_PROPERTY(QString typed MEMBER typed NOTIFY typedChanged)
  Q_PROPERTY(QString problem MEMBER problem NOTIFY problemChanged)
  Q_PROPERTY(bool canSave MEMBER canSave NOTIFY canSaveChanged)
  Q_PROPERTY(QString saveLabel MEMBER saveLabel NOTIFY titleChanged)

 public:
  explicit GoalChoiceModel(std::function<PageClients()> clients);

  RecordRows* offers() { return &offered; }

  /// Begins with a goal as it is, in seconds.
  Q_INVOKABLE void begin(double goal);
  Q_INVOKABLE void pick(int place);
  Q_INVOKABLE void openField();
  Q_INVOKABLE void type(const QString& text);
  /// What else is wrong with the goal.
  Q_INVOKABLE void tellProblem(const QString& sentence);

 Q_SIGNALS:
  void titleChanged();
  void secondsChanged();
  void isTypedChanged();
  void typedChanged();
  void problemChanged();
  void canSaveChanged();
  /// Another goal than before, by the user.
  void chosen(double seconds);

 private:
  void become(host::GoalEntry next);
  void compose();

  std::function<PageClients()> clients;
  host::GoalEntry entry;
  std::string otherProblem;
  RecordRows offered{rolesOf<host::GoalOffer>()};
  QString title, customText, fieldText, unit, example, hint, typed, problem, saveLabel;
  double seconds = 0;
  bool isTyped = false, canSave = true;
};

}  // namespace mivo::app

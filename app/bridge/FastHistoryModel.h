// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QString>

#include <functional>
#include <vector>

#include "app/bridge/RecordRows.h"
#include "app/bridge/SeenRows.h"
#include "host/app/AppFeature.h"
#include "host/pages/HistoryPage.h"

namespace mivo::app {

/// A `host::HistoryPage` and its rows.
class FastHistoryModel : public SeenRows {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(QString title MEMBER title NOTIFY textsChanged)
  Q_PROPERTY(QString addLabel MEMBER addLabel NOTIFY textsChanged)
  Q_PROPERTY(QString note MEMBER note NOTIFY textsChanged)
  Q_PROPERTY(int count MEMBER count NOTIFY countChanged)
  Q_PROPERTY(qreal scaleSeconds MEMBER scaleSeconds NOTIFY scaleSecondsChanged)
  Q_PROPERTY(QString menuTitle MEMBER menuTitle NOTIFY textsChanged)
  Q_PROPERTY(QString editLabel MEMBER editLabel NOTIFY textsChanged)
  Q_PROPERTY(QString removeLabel MEMBER removeLabel NOTIFY textsChanged)
  Q_PROPERTY(QString monthsLabel MEMBER monthsLabel NOTIFY textsChanged)
  Q_PROPERTY(bool hasMonths MEMBER hasMonths NOTIFY countChanged)
  /// `host::HistoryMonth`s, as they were when they were looked up.
  Q_PROPERTY(mivo::app::RecordRows* months READ months CONSTANT)

 public:
  using Action = host::AppFeature::Action;
  FastHistoryModel(std::function<PageClients()> clients, std::function<void(Action)> send, QObject* parent = nullptr);

  RecordRows* months() { return &monthRows; }

  void follow(const host::AppFeature::State& state);

  /// Begins the draft with the fast of a row.
  Q_INVOKABLE void edit(int row);
  Q_INVOKABLE void remove(int row);
  Q_INVOKABLE void lookUpMonths() { monthRows.show(composeHistoryMonths(facts, clients())); }
  /// What is spoken while the keyboard is at a row.
  Q_INVOKABLE QString spokenText(int row) const;

 Q_SIGNALS:
  void textsChanged();
  void countChanged();
  void scaleSecondsChanged();

 private:
  void take(host::HistoryFacts next);

  std::function<void(Action)> send;
  host::HistoryFacts facts;
  std::vector<Stamp> seen;
  QString title, addLabel, note, menuTitle, editLabel, removeLabel, monthsLabel;
  int count = 0;
  bool hasMonths = false;
  RecordRows monthRows{rolesOf<host::HistoryMonth>()};
  qreal scaleSeconds = 0;
};

}  // namespace mivo::app

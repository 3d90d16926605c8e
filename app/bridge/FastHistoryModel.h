// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QAbstractListModel>
#include <QtCore/QString>

#include <cstddef>
#include <functional>
#include <vector>

#include "app/bridge/RecordRows.h"
#include "host/app/AppFeature.h"
#include "host/pages/HistoryPage.h"

namespace mivo::app {

/// A `host::HistoryPage` and its rows, each composed when it is seen; a view is told of those that differ.
class FastHistoryModel : public QAbstractListModel {
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
  /// The texts of all rows may read differently.
  void retell();

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override { return rolesOf<host::HistoryRow>(); }

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
  void become(host::HistoryFacts next);

  std::function<PageClients()> clients;
  std::function<void(Action)> send;
  host::HistoryFacts facts;
  std::vector<Stamp> seen;
  Date toldAt;
  mutable int composedRow = -1;  // the one that was asked for last: a view asks for all its roles
  mutable QVariantList composed;
  QString title, addLabel, note, menuTitle, editLabel, removeLabel, monthsLabel;
  int count = 0;
  bool hasMonths = false;
  RecordRows monthRows{rolesOf<host::HistoryMonth>()};
  qreal scaleSeconds = 0;
};

}  // namespace mivo::app

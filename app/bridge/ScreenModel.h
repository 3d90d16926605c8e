// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QAbstractListModel>

#include <map>
#include <memory>
#include <vector>

#include "app/records/Records.h"

namespace mivo::app {

/// The cards of the statistics screen from top to bottom. A kind keeps its object, so that a recomputation changes
/// texts in place and never rebuilds what the user is touching.
class ScreenModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(int count READ count NOTIFY cardsChanged)
  /// The picker of the range, where it is one of the cards.
  Q_PROPERTY(mivo::app::TimeRangeCardRecord* timeRange READ timeRange NOTIFY cardsChanged)

 public:
  using QAbstractListModel::QAbstractListModel;

  enum Role { KindRole = Qt::UserRole, CardRole };

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override { return {{KindRole, "kind"}, {CardRole, "card"}}; }

  int count() const { return rowCount(); }
  TimeRangeCardRecord* timeRange() const;

  /// Takes a newly composed screen over.
  void show(const std::vector<Card>& composed);

  /// How many of six columns the card at a place takes when so many columns of cards fit: cards of a group share a row.
  Q_INVOKABLE int columnSpan(int place, int columns) const;

 Q_SIGNALS:
  void cardsChanged();

 private:
  template <class Content>
  void update(CardKind kind, const Content& composed);
  void become(const std::vector<CardKind>& next);

  std::vector<CardKind> shown;
  std::map<CardKind, std::unique_ptr<QObject>> cards;
};

}  // namespace mivo::app

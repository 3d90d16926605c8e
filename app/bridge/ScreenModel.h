// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QAbstractListModel>

#include <map>
#include <memory>
#include <vector>

#include "app/bridge/CardModels.h"

namespace mivo::app {

/// The cards of the statistics screen from top to bottom. A card object lives as long as its kind is shown, so that a
/// recomputation changes texts in place and never rebuilds what the user is touching.
class ScreenModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(int count READ count NOTIFY cardsChanged)
  /// The picker of the range, where it is one of the cards.
  Q_PROPERTY(mivo::app::TimeRangeCardModel* timeRange READ timeRange NOTIFY cardsChanged)

 public:
  enum Role { KindRole = Qt::UserRole, CardRole };

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  int count() const { return rowCount(); }
  TimeRangeCardModel* timeRange() const;

  /// Takes a newly composed screen over.
  void show(const std::vector<Card>& composed);

  /// How many of six columns the card at a place takes when so many columns of cards fit: cards of a group share a row.
  Q_INVOKABLE int columnSpan(int place, int columns) const;

 Q_SIGNALS:
  void cardsChanged();

 private:
  CardModel* update(CardKind kind, const CardContent& content);
  void become(const std::vector<CardModel*>& next);
  void dropHidden();

  std::vector<CardModel*> shown;
  std::map<CardKind, std::unique_ptr<CardModel>> models;
};

}  // namespace mivo::app

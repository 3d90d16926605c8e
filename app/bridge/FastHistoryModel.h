// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QAbstractListModel>
#include <QtCore/QString>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "host/app/AppFeature.h"

namespace mivo::app {

/// The fasts that have ended, the latest first. A row's texts are made when a row that shows them is seen.
class FastHistoryModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(int count READ count NOTIFY countChanged)
  /// What the strips of all rows span: a day, or the longest fast.
  Q_PROPERTY(qreal scaleSeconds READ scaleSeconds NOTIFY scaleChanged)

 public:
  enum Role {
    DateText = Qt::UserRole + 1,  ///< "Tue 9 Jun", when it began
    Times,                        ///< "20:02 – 12:33"
    Length,                       ///< "16h 31m"
    Goal,                         ///< "16h goal"
    Seconds,
    GoalFraction,  ///< 1 where the goal was reached
    Overlap,       ///< "Overlaps the fast of Sat 6 Jun"; empty where it overlaps none
    Spoken         ///< all of it
  };

  using Action = host::AppFeature::Action;
  explicit FastHistoryModel(std::function<void(Action)> send, QObject* parent = nullptr);

  void follow(const host::AppFeature::State& state);
  /// The texts of all rows may read differently.
  void retell();

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  int count() const { return static_cast<int>(rows.size()); }
  qreal scaleSeconds() const { return scale; }
  /// The record of a row; nothing for a row that is none.
  std::optional<host::FastRecord> record(int row) const;
  /// The row of a fast, or -1.
  int rowOf(UUID id) const;

  Q_INVOKABLE void remove(int row);
  /// All that a row says, in words.
  Q_INVOKABLE QString spokenText(int row) const { return data(index(row), Spoken).toString(); }

 Q_SIGNALS:
  void countChanged();
  void scaleChanged();

 private:
  using Records = List<host::FastRecord>;
  void take(const Records& next);
  void measure(Date now);
  QString overlapText(std::size_t place) const;
  QString spoken(const QModelIndex& index) const;

  std::function<void(Action)> send;
  Records fasts;                  // by start, the running one too
  std::vector<std::size_t> rows;  // places in `fasts`
  std::vector<std::optional<std::size_t>> partners;
  qreal scale = secondsPerDay;
};

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QAbstractListModel>
#include <QtCore/QStringList>

#include <vector>

#include "mivo/roadmap/RoadmapListFeature.h"
#include "mivo/store/Store.h"

namespace mivo::app {

/// The roadmap: the features that are shown just now, one a row, and what the list as a whole says. It has a store of
/// its own, which ends with it.
class RoadmapModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made while the roadmap is shown")
  Q_PROPERTY(bool loading READ isLoading NOTIFY changed)
  Q_PROPERTY(bool failed READ hasFailed NOTIFY changed)
  Q_PROPERTY(bool empty READ isEmpty NOTIFY changed)
  /// The names of the filters, "All" first, and which of them is chosen.
  Q_PROPERTY(QStringList filters READ filters NOTIFY changed)
  Q_PROPERTY(int filter READ filter NOTIFY changed)
  /// What to say of a vote that did not get through; empty where none is open.
  Q_PROPERTY(QString unsentVote READ unsentVote NOTIFY changed)
  Q_PROPERTY(QString footer READ footer CONSTANT)

 public:
  enum Role { IdRole = Qt::UserRole, TitleRole, TextRole, StatusRole, StatusTextRole, CountRole, VotedRole, OpenRole };

  explicit RoadmapModel(QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  bool isLoading() const;
  bool hasFailed() const;
  bool isEmpty() const;
  QStringList filters() const;
  int filter() const;
  QString unsentVote() const;
  QString footer() const;

  Q_INVOKABLE void choose(int filter);
  Q_INVOKABLE void vote(const QString& id);
  Q_INVOKABLE void tryAgain();

 Q_SIGNALS:
  void changed();

 private:
  using Feature = RoadmapListFeature;
  void follow(const Feature::State& state);

  Store<Feature> store;
  std::vector<RoadmapRow> shown;
  Subscription following;
};

}  // namespace mivo::app

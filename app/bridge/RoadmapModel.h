// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QAbstractListModel>
#include <QtCore/QStringList>

#include "app/bridge/Text.h"
#include "mivo/roadmap/RoadmapPage.h"
#include "mivo/store/Store.h"

namespace mivo::app {

/// The roadmap as it was composed, a feature a row. It has a store of its own, which ends with it.
class RoadmapModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made while the roadmap is shown")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(bool loading READ isLoading NOTIFY changed)
  /// What is said in place of the list.
  Q_PROPERTY(bool failed READ hasFailed NOTIFY changed)
  Q_PROPERTY(QString noticeTitle READ noticeTitle NOTIFY changed)
  Q_PROPERTY(QString noticeText READ noticeText NOTIFY changed)
  Q_PROPERTY(QString noticeButton READ noticeButton NOTIFY changed)
  /// The names of the filters, and which of them is chosen.
  Q_PROPERTY(QStringList filters READ filters NOTIFY changed)
  Q_PROPERTY(int filter READ filter NOTIFY changed)
  Q_PROPERTY(QString unsentVote READ unsentVote NOTIFY changed)
  Q_PROPERTY(QString footer READ footer NOTIFY changed)

 public:
  enum Role {
    IdRole = Qt::UserRole,
    TitleRole,
    TextRole,
    StatusRole,
    StatusTextRole,
    HasVotesRole,
    CountRole,
    SpokenVoteRole,
    VotedRole,
    OpenRole
  };

  explicit RoadmapModel(QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  QString title() const { return qString(page.title); }
  bool isLoading() const { return page.isLoading; }
  bool hasFailed() const { return page.notice.hasFailed; }
  QString noticeTitle() const { return qString(page.notice.title); }
  QString noticeText() const { return qString(page.notice.text); }
  QString noticeButton() const { return qString(page.notice.button); }
  QStringList filters() const;
  int filter() const;
  QString unsentVote() const { return qString(page.unsentVote); }
  QString footer() const { return qString(page.footer); }

  Q_INVOKABLE void choose(int filter);
  Q_INVOKABLE void vote(const QString& id);
  Q_INVOKABLE void tryAgain();

 Q_SIGNALS:
  void changed();

 private:
  using Feature = RoadmapListFeature;
  void show(RoadmapPage composed);

  Store<Feature> store;
  RoadmapPage page;
  Subscription following;
};

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include "app/bridge/RecordRows.h"
#include "app/bridge/Records.h"
#include "mivo/store/Store.h"

namespace mivo::app {

/// A `RoadmapPage`. It has a store of its own, which ends with it.
class RoadmapModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("made while the roadmap is shown")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(bool isLoading MEMBER isLoading NOTIFY changed)
  Q_PROPERTY(mivo::app::RoadmapNoticeText notice MEMBER notice NOTIFY changed)
  Q_PROPERTY(QList<mivo::app::RoadmapFilterChip> filters MEMBER filters NOTIFY changed)
  Q_PROPERTY(mivo::app::RecordRows* items READ items CONSTANT)
  Q_PROPERTY(QString unsentVote MEMBER unsentVote NOTIFY changed)
  Q_PROPERTY(QString footer MEMBER footer NOTIFY changed)

 public:
  RoadmapModel();

  const RoadmapPage& page() const { return shown; }
  RecordRows* items() { return &rows; }

  Q_INVOKABLE void choose(int filter);
  Q_INVOKABLE void vote(int row);
  Q_INVOKABLE void tryAgain() { store.send(Feature::Action::didTapTryAgain{}); }

 Q_SIGNALS:
  void changed();

 private:
  using Feature = RoadmapListFeature;
  void show(RoadmapPage composed);

  Store<Feature> store;
  RoadmapPage shown;
  QString title, unsentVote, footer;
  bool isLoading = false;
  RoadmapNoticeText notice;
  QList<RoadmapFilterChip> filters;
  RecordRows rows{rolesOf<RoadmapItem>()};
  Subscription following;
};

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>
#include <utility>

#include "app/bridge/Records.h"

namespace mivo::app {

/// A `BadgesPage`.
class BadgesModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(QString title MEMBER title NOTIFY changed)
  Q_PROPERTY(mivo::app::BadgeFamily milestones MEMBER milestones NOTIFY changed)
  Q_PROPERTY(mivo::app::BadgeFamily streaks MEMBER streaks NOTIFY changed)
  /// The open list: "milestones", "streaks", or none.
  Q_PROPERTY(QString list MEMBER list NOTIFY changed)

 public:
  using Action = BadgeSummaryFeature::Action;
  explicit BadgesModel(std::function<void(Action)> sends) : send{std::move(sends)} {}

  void show(const BadgesPage& composed) { carry(composed, *this); }

  Q_INVOKABLE void openMilestones() { send(Action::didTapMilestones{}); }
  Q_INVOKABLE void openStreaks() { send(Action::didTapStreaks{}); }
  Q_INVOKABLE void closeList() {
    using Closed = PresentationAction<BadgeSummaryFeature::Destination::Action>;
    if (!list.isEmpty()) send(Action::destination{Closed::dismiss{}});
  }

 Q_SIGNALS:
  void changed();

 private:
  std::function<void(Action)> send;
  QString title, list;
  BadgeFamily milestones, streaks;
};

}  // namespace mivo::app

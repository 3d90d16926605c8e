// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

#include "mivo/achievements/BadgesPage.h"

namespace mivo::app {

/// A `BadgeItem`.
struct BadgeEntry {
  Q_GADGET
  QML_VALUE_TYPE(badgeEntry)
  Q_PROPERTY(int threshold MEMBER threshold CONSTANT)
  Q_PROPERTY(bool earned MEMBER earned CONSTANT)
  Q_PROPERTY(QString number MEMBER number CONSTANT)
  Q_PROPERTY(QString label MEMBER label CONSTANT)

 public:
  int threshold = 0;
  bool earned = false;
  QString number, label;
  bool operator==(const BadgeEntry&) const = default;
};

/// A `BadgeFamilyPage`.
struct BadgeFamily {
  Q_GADGET
  QML_VALUE_TYPE(badgeFamily)
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(QString count MEMBER count CONSTANT)
  Q_PROPERTY(QString countLabel MEMBER countLabel CONSTANT)
  Q_PROPERTY(QString remaining MEMBER remaining CONSTANT)
  Q_PROPERTY(QString allLabel MEMBER allLabel CONSTANT)
  Q_PROPERTY(QString spoken MEMBER spoken CONSTANT)
  Q_PROPERTY(qreal fraction MEMBER fraction CONSTANT)
  Q_PROPERTY(mivo::app::BadgeEntry present MEMBER present CONSTANT)
  Q_PROPERTY(QList<mivo::app::BadgeEntry> all MEMBER all CONSTANT)
  Q_PROPERTY(QList<mivo::app::BadgeEntry> around MEMBER around CONSTANT)

 public:
  QString title, count, countLabel, remaining, allLabel, spoken;
  qreal fraction = 0;
  BadgeEntry present;
  QList<BadgeEntry> all, around;
  bool operator==(const BadgeFamily&) const = default;
};

/// The screen of all badges, as it was composed.
class BadgesModel : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(mivo::app::BadgeFamily milestones READ milestones NOTIFY changed)
  Q_PROPERTY(mivo::app::BadgeFamily streaks READ streaks NOTIFY changed)
  /// The open list: "milestones", "streaks", or none.
  Q_PROPERTY(QString list READ list NOTIFY changed)

 public:
  using Action = BadgeSummaryFeature::Action;
  explicit BadgesModel(std::function<void(Action)> send, QObject* parent = nullptr);

  void show(BadgesPage composed);

  QString title() const;
  BadgeFamily milestones() const { return milestoneFamily; }
  BadgeFamily streaks() const { return streakFamily; }
  QString list() const;

  Q_INVOKABLE void openMilestones() { send(Action::didTapMilestones{}); }
  Q_INVOKABLE void openStreaks() { send(Action::didTapStreaks{}); }
  Q_INVOKABLE void closeList();

 Q_SIGNALS:
  void changed();

 private:
  std::function<void(Action)> send;
  BadgeFamily milestoneFamily, streakFamily;
  BadgesPage page;
};

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#include "BadgesModel.h"

#include "app/bridge/Text.h"
#include "mivo/store/Names.h"

namespace mivo::app {
namespace {

BadgeEntry entryOf(const BadgeItem& badge) {
  return {static_cast<int>(badge.threshold), badge.isEarned, qString(badge.number), qString(badge.label)};
}

QList<BadgeEntry> entriesOf(const std::vector<BadgeItem>& badges) {
  QList<BadgeEntry> all;
  for (const BadgeItem& badge : badges) all.append(entryOf(badge));
  return all;
}

BadgeFamily familyOf(const BadgeFamilyPage& page) {
  BadgeFamily family;
  family.title = qString(page.title);
  family.count = qString(page.count);
  family.countLabel = qString(page.countLabel);
  family.remaining = qString(page.remaining);
  family.allLabel = qString(page.allLabel);
  family.spoken = qString(page.spoken);
  family.fraction = page.fraction;
  family.present = entryOf(page.present);
  family.all = entriesOf(page.all);
  family.around = entriesOf(page.around);
  return family;
}

}  // namespace

BadgesModel::BadgesModel(std::function<void(Action)> sends, QObject* parent)
    : QObject{parent}, send{std::move(sends)} {}

void BadgesModel::show(BadgesPage composed) {
  if (page == composed) return;
  page = std::move(composed);
  milestoneFamily = familyOf(page.milestones);
  streakFamily = familyOf(page.streaks);
  Q_EMIT changed();
}

QString BadgesModel::title() const { return qString(page.title); }

QString BadgesModel::list() const { return page.list ? qString(enumeratorText(*page.list)) : QString{}; }

void BadgesModel::closeList() {
  using Closed = PresentationAction<BadgeSummaryFeature::Destination::Action>;
  if (page.list) send(Action::destination{Closed::dismiss{}});
}

}  // namespace mivo::app

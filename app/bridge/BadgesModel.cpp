// SPDX-License-Identifier: MIT
#include "BadgesModel.h"

#include <algorithm>

#include "app/bridge/Text.h"
#include "mivo/achievements/Badges.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

using Entity = StreakSettings::CountingEntity;
constexpr qsizetype shownAround = 5, beforePresent = 2;

QString text(std::string_view key) { return qString(dependency(&Dependencies::texts)->text(key)); }

QString number(std::int64_t value) { return qString(dependency(&Dependencies::numberFormatter)->string(value)); }

QString counted(std::int64_t count, Entity entity) {
  const auto& texts = *dependency(&Dependencies::texts);
  const std::string pattern = entity == Entity::days ? texts.plural("{1} day", "{1} days", count)
                                                     : texts.plural("{1} fast", "{1} fasts", count);
  return qString(filledIn(pattern, {number(count).toStdString()}));
}

BadgeFamily family(const List<std::int64_t>& thresholds, std::int64_t count, Entity entity) {
  BadgeFamily made;
  const BadgeProgress progress = badgeProgress(thresholds.elements(), count);
  for (const std::int64_t threshold : thresholds)
    made.all.append({static_cast<int>(threshold), count >= threshold, number(threshold), counted(threshold, entity)});
  const auto present = static_cast<qsizetype>(std::max<std::int64_t>(0, progress.earnedBadges - 1));
  made.present = made.all.value(present);
  const qsizetype first =
      std::clamp<qsizetype>(present - beforePresent, 0, std::max<qsizetype>(0, made.all.size() - shownAround));
  made.around = made.all.mid(first, shownAround);
  made.count = counted(count, entity);
  made.fraction = progress.fraction();
  const auto& texts = *dependency(&Dependencies::texts);
  const auto& numbers = *dependency(&Dependencies::numberFormatter);
  made.remaining =
      qString(progress.next ? remainingText(progress, texts, numbers) : progressText(progress, texts, numbers));
  made.allLabel = qString(filledIn(texts.text("All {1}"), {number(made.all.size()).toStdString()}));
  return made;
}

QString nameOf(const Presentation<BadgeSummaryFeature::Destination::State>& list) {
  if (!list) return {};
  using Case = BadgeSummaryFeature::Destination::State;
  return std::holds_alternative<Case::milestones>(*list) ? QStringLiteral("milestones") : QStringLiteral("streaks");
}

}  // namespace

BadgesModel::BadgesModel(std::function<void(Action)> sends, QObject* parent)
    : QObject{parent}, send{std::move(sends)} {}

void BadgesModel::follow(const BadgeSummaryFeature::State& state, Entity entity) {
  milestoneFamily = family(state.allMilestones, state.totalFasts, Entity::fasts);
  milestoneFamily.title = text("Milestones");
  milestoneFamily.countLabel = text("Number of fasts");
  streakFamily = family(state.allStreaks, state.maxStreak, entity);
  streakFamily.title = text("Streaks");
  streakFamily.countLabel = text("Longest streak");
  openList = nameOf(state.destination);
  Q_EMIT changed();
}

void BadgesModel::closeList() {
  using Closed = PresentationAction<BadgeSummaryFeature::Destination::Action>;
  if (!openList.isEmpty()) send(Action::destination{Closed::dismiss{}});
}

}  // namespace mivo::app

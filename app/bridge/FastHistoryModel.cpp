// SPDX-License-Identifier: MIT
#include "FastHistoryModel.h"

#include <algorithm>
#include <utility>

#include "app/bridge/DateTimeText.h"
#include "app/bridge/GoalTime.h"
#include "app/bridge/Text.h"
#include "app/bridge/ZoneTime.h"
#include "host/fasting/OverlappingFasts.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

using host::FastRecord;

std::vector<std::size_t> latestFirst(const List<FastRecord>& fasts) {
  std::vector<std::size_t> places;
  places.reserve(fasts.size());
  for (std::size_t place = fasts.size(); place-- > 0;)
    if (fasts[place].fast.finished) places.push_back(place);
  return places;
}

const TextLookup& texts() { return *dependency(&Dependencies::texts); }

double goalFraction(const FastRecord& record) {
  const auto goal = static_cast<double>(record.fast.goalSeconds);
  return goal > 0 ? std::min(1.0, record.fast.finished->duration() / goal) : 1;
}

}  // namespace

FastHistoryModel::FastHistoryModel(std::function<void(Action)> sends, QObject* parent)
    : QAbstractListModel{parent}, send{std::move(sends)} {}

void FastHistoryModel::follow(const host::AppFeature::State& state) {
  const bool isNew = !fasts.sharesStorageWith(*state.fasts);
  if (isNew) take(*state.fasts);
  if (isNew || state.runningFast()) measure(state.now);
}

// Rows that are the same at both ends stay; what lies between goes, comes or changes.
void FastHistoryModel::take(const Records& next) {
  auto after = latestFirst(next);
  const std::size_t shorter = std::min(rows.size(), after.size());
  const auto isSame = [&](std::size_t one, std::size_t other) { return fasts[rows[one]] == next[after[other]]; };
  std::size_t top = 0, bottom = 0;
  while (top < shorter && isSame(top, top)) ++top;
  while (bottom < shorter - top && isSame(rows.size() - 1 - bottom, after.size() - 1 - bottom)) ++bottom;
  const int old = count(), fresh = static_cast<int>(after.size());
  const int changedUntil = static_cast<int>(shorter - bottom);
  if (fresh < old) beginRemoveRows({}, changedUntil, changedUntil + old - fresh - 1);
  if (fresh > old) beginInsertRows({}, changedUntil, changedUntil + fresh - old - 1);
  fasts = next;
  rows = std::move(after);
  if (fresh < old) endRemoveRows();
  if (fresh > old) endInsertRows();
  if (fresh != old) Q_EMIT countChanged();
}

// A strip and a mark of any row may change with another's record.
void FastHistoryModel::measure(Date now) {
  partners = host::overlapPartners(fasts.elements(), now);
  qreal longest = secondsPerDay;
  for (const std::size_t place : rows) longest = std::max(longest, fasts[place].fast.finished->duration());
  if (std::exchange(scale, longest) != longest) Q_EMIT scaleChanged();
  retell();
}

void FastHistoryModel::retell() {
  if (!rows.empty()) Q_EMIT dataChanged(index(0), index(count() - 1));
}

int FastHistoryModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : count(); }

QHash<int, QByteArray> FastHistoryModel::roleNames() const {
  return {{DateText, "date"},   {Times, "times"},     {Length, "length"},
          {Goal, "goal"},       {Seconds, "seconds"}, {GoalFraction, "goalFraction"},
          {Overlap, "overlap"}, {Spoken, "spoken"}};
}

QVariant FastHistoryModel::data(const QModelIndex& index, int role) const {
  const auto record = this->record(index.row());
  if (!record) return {};
  const auto& [fast, note] = *record;
  switch (role) {
    case DateText:
      return qString(dayText(fast.start));
    case Times:
      return qString(clockText(fast.start) + " – " + clockText(fast.finished->end));
    case Length:
      return durationText(fast.finished->duration());
    case Goal:
      return qString(
          filledIn(texts().text("{1} goal"), {goalText(static_cast<double>(fast.goalSeconds)).toStdString()}));
    case Seconds:
      return fast.finished->duration();
    case GoalFraction:
      return goalFraction(*record);
    case Overlap:
      return overlapText(rows[static_cast<std::size_t>(index.row())]);
    case Spoken:
      return spoken(index);
    default:
      return {};
  }
}

QString FastHistoryModel::overlapText(std::size_t place) const {
  if (place >= partners.size() || !partners[place]) return {};
  return qString(filledIn(texts().text("Overlaps the fast of {1}"), {dayText(fasts[*partners[place]].fast.start)}));
}

QString FastHistoryModel::spoken(const QModelIndex& index) const {
  const QString reached = data(index, GoalFraction).toDouble() < 1 ? QString{} : qString(texts().text("goal reached"));
  QStringList parts;
  for (const Role role : {DateText, Times, Length, Goal}) parts.append(data(index, role).toString());
  for (const QString& part : {reached, data(index, Overlap).toString()})
    if (!part.isEmpty()) parts.append(part);
  return parts.join(QStringLiteral(", "));
}

std::optional<FastRecord> FastHistoryModel::record(int row) const {
  if (row < 0 || row >= count()) return std::nullopt;
  return fasts[rows[static_cast<std::size_t>(row)]];
}

int FastHistoryModel::rowOf(UUID id) const {
  const auto found = std::ranges::find(rows, id, [this](std::size_t place) { return fasts[place].fast.id; });
  return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

void FastHistoryModel::remove(int row) {
  if (const auto gone = record(row)) send(Action::didDeleteFast{gone->fast.id});
}

}  // namespace mivo::app

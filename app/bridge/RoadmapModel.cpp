// SPDX-License-Identifier: MIT
#include "RoadmapModel.h"

#include <algorithm>

#include "app/bridge/Text.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

QString text(std::string_view key) { return qString(dependency(&Dependencies::texts)->text(key)); }

bool isSameList(const std::vector<RoadmapRow>& one, const std::vector<RoadmapRow>& other) {
  return std::ranges::equal(
      one, other, {}, [](const RoadmapRow& row) { return row.feature.id; },
      [](const RoadmapRow& row) { return row.feature.id; });
}

}  // namespace

RoadmapModel::RoadmapModel(QObject* parent)
    : QAbstractListModel{parent},
      store{Feature::State{}, Feature{}, dependency(&Dependencies::mainQueue), dependency(&Dependencies::taskRunner)} {
  following = store.observe([this](const Feature::State& state) { follow(state); });
  store.send(Feature::Action::onAppear{});
}

// Counts arrive one by one: rows that only say something new stay where they are.
void RoadmapModel::follow(const Feature::State& state) {
  auto next = visibleRows(state);
  if (isSameList(next, shown)) {
    shown = std::move(next);
    if (!shown.empty()) Q_EMIT dataChanged(index(0), index(static_cast<int>(shown.size()) - 1));
  } else {
    beginResetModel();
    shown = std::move(next);
    endResetModel();
  }
  Q_EMIT changed();
}

int RoadmapModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown.size());
}

QVariant RoadmapModel::data(const QModelIndex& index, int role) const {
  const RoadmapRow& row = shown[static_cast<std::size_t>(index.row())];
  switch (role) {
    case IdRole:
      return qString(row.feature.id);
    case TitleRole:
      return qString(row.feature.title);
    case TextRole:
      return qString(row.feature.description);
    case StatusRole:
      return qString(row.feature.status);
    case StatusTextRole:
      return qString(statusText(row.feature.status, *dependency(&Dependencies::texts)));
    case CountRole:
      return qString(dependency(&Dependencies::numberFormatter)->string(row.count));
    case VotedRole:
      return row.isVoted;
    case OpenRole:
      return store.state().phase == RoadmapPhase::loaded && isOpenForVotes(row.feature);
    default:
      return {};
  }
}

QHash<int, QByteArray> RoadmapModel::roleNames() const {
  return {{IdRole, "featureID"},          {TitleRole, "title"}, {TextRole, "text"},   {StatusRole, "status"},
          {StatusTextRole, "statusName"}, {CountRole, "count"}, {VotedRole, "voted"}, {OpenRole, "open"}};
}

bool RoadmapModel::isLoading() const {
  return store.state().phase == RoadmapPhase::loading || store.state().phase == RoadmapPhase::idle;
}

bool RoadmapModel::hasFailed() const { return store.state().phase == RoadmapPhase::failed; }

bool RoadmapModel::isEmpty() const { return store.state().phase == RoadmapPhase::loaded && shown.empty(); }

QStringList RoadmapModel::filters() const {
  QStringList names{text(RoadmapTexts::allStatuses)};
  for (const auto& status : statuses(store.state()))
    names.append(qString(statusText(status, *dependency(&Dependencies::texts))));
  return names;
}

int RoadmapModel::filter() const {
  const auto& chosen = *store.state().status;
  if (!chosen) return 0;
  const auto all = statuses(store.state());
  return static_cast<int>(std::ranges::find(all, *chosen) - all.begin()) + 1;
}

QString RoadmapModel::unsentVote() const {
  return store.state().unsentVote->has_value() ? text(RoadmapTexts::voteNotSent) : QString{};
}

QString RoadmapModel::footer() const { return text(RoadmapFeedbackView::footerText); }

void RoadmapModel::choose(int filter) {
  const auto all = statuses(store.state());
  const auto place = static_cast<std::size_t>(filter - 1);
  store.send(
      Feature::Action::didTapStatus{filter > 0 && place < all.size() ? std::optional{all[place]} : std::nullopt});
}

void RoadmapModel::vote(const QString& id) { store.send(Feature::Action::didTapVote{id.toStdString()}); }

void RoadmapModel::tryAgain() { store.send(Feature::Action::didTapTryAgain{}); }

}  // namespace mivo::app

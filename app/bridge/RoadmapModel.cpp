// SPDX-License-Identifier: MIT
#include "RoadmapModel.h"

#include <algorithm>

#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

bool haveSameIDs(const std::vector<RoadmapItem>& one, const std::vector<RoadmapItem>& other) {
  return std::ranges::equal(one, other, {}, &RoadmapItem::id, &RoadmapItem::id);
}

}  // namespace

RoadmapModel::RoadmapModel(QObject* parent)
    : QAbstractListModel{parent},
      store{Feature::State{}, Feature{}, dependency(&Dependencies::mainQueue), dependency(&Dependencies::taskRunner)} {
  following =
      store.observe([this, allowsVotes = RoadmapFeedbackView::configuration().allowVotes,
                     texts = dependency(&Dependencies::texts), numbers = dependency(&Dependencies::numberFormatter)](
                        const Feature::State& state) { show(composeRoadmap(state, allowsVotes, *texts, *numbers)); });
  store.send(Feature::Action::onAppear{});
}

// Counts arrive one by one: rows that only say something new stay where they are.
void RoadmapModel::show(RoadmapPage composed) {
  if (page == composed) return;
  if (haveSameIDs(page.items, composed.items)) {
    page = std::move(composed);
    if (!page.items.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
  } else {
    beginResetModel();
    page = std::move(composed);
    endResetModel();
  }
  Q_EMIT changed();
}

int RoadmapModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(page.items.size());
}

QVariant RoadmapModel::data(const QModelIndex& index, int role) const {
  const RoadmapItem& item = page.items[static_cast<std::size_t>(index.row())];
  switch (role) {
    case IdRole:
      return qString(item.id);
    case TitleRole:
      return qString(item.title);
    case TextRole:
      return qString(item.text);
    case StatusRole:
      return qString(item.status);
    case StatusTextRole:
      return qString(item.statusName);
    case HasVotesRole:
      return item.hasVotes;
    case CountRole:
      return qString(item.count);
    case SpokenVoteRole:
      return qString(item.spokenVote);
    case VotedRole:
      return item.isVoted;
    case OpenRole:
      return item.isOpen;
    default:
      return {};
  }
}

QHash<int, QByteArray> RoadmapModel::roleNames() const {
  return {{IdRole, "featureID"},  {TitleRole, "title"},           {TextRole, "text"},
          {StatusRole, "status"}, {StatusTextRole, "statusName"}, {HasVotesRole, "hasVotes"},
          {CountRole, "count"},   {SpokenVoteRole, "spokenVote"}, {VotedRole, "voted"},
          {OpenRole, "open"}};
}

QStringList RoadmapModel::filters() const {
  QStringList names;
  for (const RoadmapFilter& filter : page.filters) names.append(qString(filter.name));
  return names;
}

int RoadmapModel::filter() const {
  return static_cast<int>(std::ranges::find(page.filters, true, &RoadmapFilter::isChosen) - page.filters.begin());
}

void RoadmapModel::choose(int filter) {
  store.send(Feature::Action::didTapStatus{page.filters[static_cast<std::size_t>(filter)].status});
}

void RoadmapModel::vote(const QString& id) { store.send(Feature::Action::didTapVote{id.toStdString()}); }

void RoadmapModel::tryAgain() { store.send(Feature::Action::didTapTryAgain{}); }

}  // namespace mivo::app

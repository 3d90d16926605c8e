// SPDX-License-Identifier: MIT
#include "FastDraftModel.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "app/bridge/DateTimeText.h"
#include "app/bridge/Text.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

using host::RecordFault;

Date presentDate() { return dependency(&Dependencies::date)->now(); }

QString text(std::optional<RecordFault> fault, std::initializer_list<RecordFault> kinds) {
  const bool isOne = fault && std::ranges::find(kinds, *fault) != kinds.end();
  return isOne ? qString(faultText(*fault, *dependency(&Dependencies::texts))) : QString{};
}

}  // namespace

FastDraftModel::FastDraftModel(std::function<host::PageClients()> present, std::function<void(Action)> sends,
                               QObject* parent)
    : QObject{parent},
      clients{std::move(present)},
      send{std::move(sends)},
      draft{.record = {finishedFast({}, Date{}, Date{}, 0), {}}, .before = {}, .failure = {}} {}

void FastDraftModel::follow(const host::AppFeature::State& state) {
  fasts = *state.fasts;
  const auto& present = *state.draft;
  if (present) draft = *present;
  const bool wasOpen = std::exchange(isOpen, present.has_value());
  if (isOpen) retell();
  if (wasOpen && !isOpen) Q_EMIT ended();
}

void FastDraftModel::retell() {
  zoneRows.show(host::zoneTimeTexts(seconds(), clients()));
  Q_EMIT changed();
}

QString FastDraftModel::length() const { return qString(host::durationText(seconds(), clients())); }

QString FastDraftModel::startText() const { return fixedDateTimeText(draft.record.fast.start); }

QString FastDraftModel::endText() const { return fixedDateTimeText(finished().end); }

QString FastDraftModel::startProblem() const {
  return text(faultOf(draft, presentDate()), {RecordFault::startInFuture, RecordFault::startOutOfRange});
}

QString FastDraftModel::endProblem() const {
  return text(faultOf(draft, presentDate()),
              {RecordFault::endBeforeStart, RecordFault::endInFuture, RecordFault::endOutOfRange});
}

QString FastDraftModel::goalProblem() const {
  return text(faultOf(draft, presentDate()), {RecordFault::goalOutOfRange});
}

QString FastDraftModel::overlap() const {
  const auto* other = overlapOf(draft, fasts, presentDate());
  if (!other) return {};
  const auto& texts = *dependency(&Dependencies::texts);
  return qString(filledIn(texts.text("Overlaps the fast of {1}"), {dayText(other->fast.start)}));
}

void FastDraftModel::setGoal(double chosen) {
  send(Action::didChangeDraftGoal{static_cast<std::int64_t>(std::llround(chosen))});
}

void FastDraftModel::remove() {
  if (draft.before) send(Action::didDeleteFast{draft.before->fast.id});
}

}  // namespace mivo::app

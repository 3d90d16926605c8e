// SPDX-License-Identifier: MIT
#include "FastDraftModel.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "app/bridge/DateTimeText.h"
#include "app/bridge/Text.h"
#include "host/app/FaultText.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

using host::FastRecord;
using host::RecordFault;

constexpr double secondsPerMinute = 60;

Date presentDate() { return dependency(&Dependencies::date)->now(); }

QString text(std::optional<RecordFault> fault, std::initializer_list<RecordFault> kinds) {
  const bool isOne = fault && std::ranges::find(kinds, *fault) != kinds.end();
  return isOne ? qString(faultText(*fault, *dependency(&Dependencies::texts))) : QString{};
}

Date endOf(const FastRecord& record, Date now) { return record.fast.finished ? record.fast.finished->end : now; }

}  // namespace

Date keepingSeconds(Date old, double chosen) {
  const auto minute = [](double seconds) { return std::floor(seconds / secondsPerMinute); };
  return minute(secondsSince1970(old)) == minute(chosen) ? old : dateSince1970(chosen);
}

FastDraftModel::FastDraftModel(std::function<void(Action)> sends, QObject* parent)
    : QObject{parent}, send{std::move(sends)}, draft{finishedFast({}, Date{}, Date{}, 0), {}} {}

void FastDraftModel::edit(const FastRecord& record) {
  draft = record;
  before = record;
  isSaving = false;
  failureText.clear();
  Q_EMIT changed();
}

void FastDraftModel::add(std::int64_t goal) {
  double end = secondsSince1970(presentDate());
  for (const FastRecord& record : fasts)
    if (!record.fast.finished) end = std::min(end, secondsSince1970(record.fast.start));
  const Date minute = dateSince1970(std::floor(end / secondsPerMinute) * secondsPerMinute);
  const Date start = minute - Duration{static_cast<double>(goal)};
  edit({finishedFast(dependency(&Dependencies::uuid)->next(), start, minute, goal), {}});
  before = std::nullopt;
  Q_EMIT changed();
}

void FastDraftModel::follow(const host::AppFeature::State& state) {
  fasts = *state.fasts;
  hasFailure = !state.failure->empty();
  if (!isSaving) return;
  const bool isThere = std::ranges::find(fasts, draft) != fasts.end();
  if (!isThere && !hasFailure) return;
  isSaving = false;
  failureText = isThere ? QString{} : qString(state.failure);
  Q_EMIT changed();
  if (isThere) Q_EMIT saved();
}

QString FastDraftModel::startText() const { return fixedDateTimeText(draft.fast.start); }

QString FastDraftModel::endText() const { return fixedDateTimeText(finished().end); }

std::optional<RecordFault> FastDraftModel::fault() const { return recordFault(draft, before, presentDate()); }

QString FastDraftModel::startProblem() const {
  return text(fault(), {RecordFault::startInFuture, RecordFault::startOutOfRange});
}

QString FastDraftModel::endProblem() const {
  return text(fault(), {RecordFault::endBeforeStart, RecordFault::endInFuture, RecordFault::endOutOfRange});
}

QString FastDraftModel::goalProblem() const { return text(fault(), {RecordFault::goalOutOfRange}); }

// Of several the one that began last, which is the one that people think of.
QString FastDraftModel::overlap() const {
  const Date now = presentDate();
  const FastRecord* last = nullptr;
  for (const FastRecord& other : fasts) {
    const bool isOther = other.fast.id != draft.fast.id && endOf(other, now) > other.fast.start;
    if (isOther && other.fast.start < finished().end && draft.fast.start < endOf(other, now)) last = &other;
  }
  if (!last || seconds() <= 0) return {};
  const auto& texts = *dependency(&Dependencies::texts);
  return qString(filledIn(texts.text("Overlaps the fast of {1}"), {dayText(last->fast.start)}));
}

void FastDraftModel::change(Date start, Date end, std::int64_t goal) {
  draft.fast = finishedFast(draft.fast.id, start, end, goal);
  failureText.clear();
  Q_EMIT changed();
}

void FastDraftModel::setStart(double instant) {
  change(keepingSeconds(draft.fast.start, instant), finished().end, draft.fast.goalSeconds);
}

void FastDraftModel::setEnd(double instant) {
  change(draft.fast.start, keepingSeconds(finished().end, instant), draft.fast.goalSeconds);
}

void FastDraftModel::setGoal(double chosen) {
  change(draft.fast.start, finished().end, static_cast<std::int64_t>(std::llround(chosen)));
}

void FastDraftModel::save() {
  if (isSaving || fault()) return;
  if (before == draft) return Q_EMIT saved();
  if (hasFailure) send(Action::didDismissMessages{});
  isSaving = true;
  send(Action::didSaveFast{draft});
}

void FastDraftModel::remove() {
  if (before) send(Action::didDeleteFast{before->fast.id});
}

}  // namespace mivo::app

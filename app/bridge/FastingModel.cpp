// SPDX-License-Identifier: MIT
#include "FastingModel.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "app/bridge/DateTimeText.h"
#include "app/bridge/GoalTime.h"
#include "app/bridge/Text.h"
#include "mivo/fasting/GoalTime.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

constexpr double secondsPerMinute = 60, ringStep = 10;
constexpr double leastGapOfMarks = 0.055;  // of the ring: about as wide as "16h"

Date presentDate() { return dependency(&Dependencies::date)->now(); }

std::string number(long long value, bool hasTwoDigits) {
  const auto& numbers = *dependency(&Dependencies::numberFormatter);
  const std::string text = numbers.string(std::int64_t{value});
  return hasTwoDigits && value < 10 ? numbers.string(std::int64_t{0}) + text : text;
}

QString timerText(double seconds) {
  const auto whole = static_cast<long long>(seconds);
  return qString(number(whole / 3600, false) + ':' + number(whole / 60 % 60, true) + ':' + number(whole % 60, true));
}

QString filled(const std::string& pattern, std::initializer_list<std::string_view> arguments) {
  return qString(filledIn(pattern, arguments));
}

std::optional<FinishedFastingDataEntry> endedLast(const List<host::FastRecord>& fasts) {
  std::optional<FinishedFastingDataEntry> last;
  for (const auto& record : fasts)
    if (record.fast.finished && (!last || record.fast.finished->end >= last->end)) last = record.fast.finished;
  return last;
}

}  // namespace

FastingModel::FastingModel(std::function<void(Action)> sends, QObject* parent)
    : QObject{parent}, send{std::move(sends)}, ended{send}, edited{send} {
  timer.setSingleShot(true);
  timer.setTimerType(Qt::PreciseTimer);
  connect(&timer, &QTimer::timeout, this, &FastingModel::tick);
}

void FastingModel::follow(const host::AppFeature::State& state) {
  ended.follow(state);
  edited.follow(state);
  const host::FastRecord* present = state.runningFast();
  fasts = *state.fasts;
  running = present ? std::optional{*present} : std::nullopt;
  last = endedLast(*state.fasts);
  nextGoalSeconds = state.nextGoalSeconds;
  overlap = ended.overlapOfRunning();
  Q_EMIT changed();
  tick();
}

void FastingModel::retell() {
  ended.retell();
  edited.retell();
  Q_EMIT changed();
  tick();
}

void FastingModel::setWatched(bool seen) {
  if (std::exchange(watched, seen) == seen) return;
  Q_EMIT watchedChanged();
  tick();
}

void FastingModel::tick() {
  Q_EMIT ticked();
  const auto zones = running ? zoneTimes(seconds()) : QList<ZoneTime>{};
  if (std::exchange(shownZones, zones) != zones) Q_EMIT zonesChanged();
  waitForTheNextTick();
}

// At the next whole second of what is shown; at the next whole minute where no seconds are seen.
void FastingModel::waitForTheNextTick() {
  timer.stop();
  if (!running && !(watched && last)) return;
  const double step = watched ? 1 : secondsPerMinute;
  const double passed = secondsBetween(running ? running->fast.start : last->end, presentDate());
  const double rest = step - (passed - std::floor(passed / step) * step);
  timer.start(static_cast<int>(std::ceil(rest * 1000)) + 1);
}

// Whole seconds, so that what has passed and what is left add up. None before the start.
double FastingModel::seconds() const {
  if (!running && !last) return 0;
  return std::max(0.0, std::floor(secondsBetween(running ? running->fast.start : last->end, presentDate())));
}

qreal FastingModel::ringSeconds() const { return std::floor(seconds() / ringStep) * ringStep; }

qreal FastingModel::goalSeconds() const {
  return static_cast<qreal>(running ? running->fast.goalSeconds : nextGoalSeconds);
}

// The goal; past it the end of the present zone, and then day by day.
qreal FastingModel::spanSeconds() const {
  const qreal goal = goalSeconds();
  if (isEating()) return std::max(secondsPerHour, secondsPerDay - goal);
  double span = std::max(goal, secondsPerHour);
  for (const double bound : {zoneBounds[3], zoneBounds[4]})
    if (seconds() > span) span = std::max(span, bound);
  if (seconds() > span) span += std::ceil((seconds() - span) / secondsPerDay) * secondsPerDay;
  return span;
}

// The end of the ring is always named, the borders of zones where there is room.
QList<qreal> FastingModel::marks() const {
  const qreal span = spanSeconds(), gap = leastGapOfMarks * span;
  if (isEating()) return {span / 2, span};
  QList<qreal> places;
  for (const double bound : zoneBounds)
    if (bound > (places.isEmpty() ? 0 : places.constLast()) + gap && bound + gap < span) places.append(bound);
  places.append(span);
  return places;
}

QStringList FastingModel::markTexts() const {
  QStringList texts;
  for (const qreal place : marks()) texts.append(app::goalText(place));
  return texts;
}

QString FastingModel::elapsed() const { return running || last ? timerText(seconds()) : QString{}; }

QString FastingModel::goalText() const {
  const auto& texts = *dependency(&Dependencies::texts);
  if (!running) return last ? qString(texts.text("since your last fast")) : QString{};
  const double left = goalSeconds() - seconds();
  const std::string pattern = left > 0 ? texts.text("{1} to your goal") : texts.text("{1} past your goal");
  return filled(pattern, {durationText(std::abs(left)).toStdString()});
}

QString FastingModel::warning() const {
  if (!running) return {};
  if (running->fast.start <= presentDate()) return overlap;
  const auto& texts = *dependency(&Dependencies::texts);
  return qString(texts.text("This fast begins in the future. Check the clock, or change when it started."));
}

QString FastingModel::startedText() const { return running ? dateTimeText(running->fast.start) : QString{}; }

QString FastingModel::goal() const {
  const std::string length = app::goalText(goalSeconds()).toStdString();
  if (!running) return qString(length);
  const auto& texts = *dependency(&Dependencies::texts);
  const Date end = running->fast.start + Duration{goalSeconds()};
  switch (daysFromToday(end)) {
    case -1:
      return filled(texts.text("{1}, yesterday {2}"), {length, clockText(end)});
    case 0:
      return filled(texts.text("{1}, today {2}"), {length, clockText(end)});
    case 1:
      return filled(texts.text("{1}, tomorrow {2}"), {length, clockText(end)});
    default:
      return filled("{1}, {2}", {length, fixedDateTimeText(end).toStdString()});
  }
}

QString FastingModel::lastFast() const { return last ? durationText(last->duration()) : QString{}; }

void FastingModel::start() { send(Action::didTapStart{presentDate(), nextGoalSeconds}); }

void FastingModel::stop() { send(Action::didTapStop{presentDate()}); }

QString FastingModel::startProblem(double instant) const {
  if (!running) return {};
  const auto outcome = host::changingStart(fasts, dateSince1970(instant), presentDate());
  return outcome ? QString{} : qString(refusalText(outcome.error(), *dependency(&Dependencies::texts)));
}

void FastingModel::changeStart(double instant) { send(Action::didChangeStart{dateSince1970(instant)}); }

void FastingModel::changeGoal(double seconds) {
  send(Action::didChangeGoal{static_cast<std::int64_t>(std::llround(seconds))});
}

void FastingModel::edit(int row) {
  if (const auto record = ended.record(row)) send(Action::didTapEditFast{record->fast.id});
}

void FastingModel::add() { send(Action::didTapAddFast{}); }

QString FastingModel::hoursText(double seconds) const { return app::goalText(seconds); }

QString FastingModel::typedGoal(double seconds) const { return qString(mivo::typedGoal(seconds)); }

double FastingModel::parsedGoal(const QString& text) const {
  return static_cast<double>(parseGoal(text.toStdString()).value_or(0));
}

}  // namespace mivo::app

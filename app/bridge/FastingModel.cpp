// SPDX-License-Identifier: MIT
#include "FastingModel.h"

#include <algorithm>
#include <cmath>

#include "app/bridge/DateTimeText.h"
#include "app/bridge/Text.h"
#include "host/app/Settings.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {
namespace {

Date presentDate() { return dependency(&Dependencies::date)->now(); }

QString clockText(double seconds) {
  const auto whole = static_cast<long long>(std::max(0.0, seconds));
  return QStringLiteral("%1:%2:%3")
      .arg(whole / 3600)
      .arg(whole / 60 % 60, 2, 10, QLatin1Char{'0'})
      .arg(whole % 60, 2, 10, QLatin1Char{'0'});
}

QString durationText(double seconds) {
  return qString(dependency(&Dependencies::hourMinDurationUnitFormatter)->string(seconds).value_or(""));
}

}  // namespace

FastingModel::FastingModel(std::function<void(Action)> sends, QObject* parent)
    : QObject{parent}, send{std::move(sends)} {
  timer.setInterval(1000);
  timer.setTimerType(Qt::PreciseTimer);
  connect(&timer, &QTimer::timeout, this, &FastingModel::ticked);
  timer.start();
}

void FastingModel::follow(const host::AppFeature::State& state) {
  const host::FastRecord* present = state.runningFast();
  const auto next = present ? std::optional{*present} : std::nullopt;
  std::optional<Date> end;
  for (const auto& record : *state.fasts)
    if (record.fast.finished) end = std::max(end.value_or(record.fast.finished->end), record.fast.finished->end);
  if (next == running && end == lastEnd) return;
  running = next;
  lastEnd = end;
  Q_EMIT changed();
  Q_EMIT ticked();
}

qreal FastingModel::seconds() const {
  if (running) return secondsBetween(running->fast.start, presentDate());
  return lastEnd ? secondsBetween(*lastEnd, presentDate()) : 0;
}

std::int64_t FastingModel::goalSeconds() const {
  return running ? running->fast.goalSeconds : host::goalSeconds(*dependency(&Dependencies::userDefaults));
}

// The goal; past it the end of the present zone, and then day by day.
qreal FastingModel::spanSeconds() const {
  const auto goal = static_cast<double>(goalSeconds());
  if (!running) return std::max(secondsPerHour, secondsPerDay - goal);
  double span = std::max(goal, secondsPerHour);
  for (const double bound : {24 * secondsPerHour, 72 * secondsPerHour})
    if (seconds() > span) span = std::max(span, bound);
  while (seconds() > span) span += secondsPerDay;
  return span;
}

LegacyFastingZone FastingModel::presentZone() const {
  if (!running) return LegacyFastingZone::eating;
  const auto begun = std::ranges::count_if(zoneBounds, [this](double bound) { return bound <= seconds(); });
  const auto first = static_cast<std::ptrdiff_t>(LegacyFastingZone::anabolic);
  return allFastingZones[static_cast<std::size_t>(first + std::max<std::ptrdiff_t>(0, begun - 1))];
}

QString FastingModel::elapsed() const { return running || lastEnd ? clockText(seconds()) : QString{}; }

QString FastingModel::duration() const { return durationText(seconds()); }

QString FastingModel::zone() const { return QString::fromUtf8(caseName(presentZone()).data()); }

QString FastingModel::zoneName() const {
  return qString(dependency(&Dependencies::texts)->text(displayString(presentZone())));
}

QString FastingModel::goalText() const {
  if (!running) return {};
  const double left = static_cast<double>(goalSeconds()) - seconds();
  const auto& texts = dependency(&Dependencies::texts);
  const std::string pattern = left > 0 ? texts->text("{1} to your goal") : texts->text("{1} past your goal");
  return qString(filledIn(pattern, {durationText(std::abs(left)).toStdString()}));
}

QString FastingModel::startedText() const {
  if (!running) return {};
  return dateTimeText(running->fast.start);
}

QString FastingModel::goalLength() const { return durationText(static_cast<double>(goalSeconds())); }

void FastingModel::start() { send(Action::didTapStart{presentDate(), goalSeconds()}); }

void FastingModel::stop() { send(Action::didTapStop{presentDate()}); }

void FastingModel::changeGoal(int hours) {
  const std::int64_t seconds = std::int64_t{hours} * 3600;
  host::setGoalSeconds(*dependency(&Dependencies::userDefaults), seconds);
  if (running) {
    host::FastRecord edited = *running;
    edited.fast.goalSeconds = seconds;
    send(Action::didSaveFast{std::move(edited)});
  }
  Q_EMIT changed();
  Q_EMIT ticked();
}

}  // namespace mivo::app

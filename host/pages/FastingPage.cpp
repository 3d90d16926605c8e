// SPDX-License-Identifier: MIT
#include "host/pages/FastingPage.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "host/fasting/Fasting.h"
#include "host/fasting/OverlappingFasts.h"
#include "mivo/fasting/GoalTime.h"
#include "mivo/fasting/ZoneTimes.h"
#include "mivo/pages/DateTimeText.h"

namespace mivo::host {
namespace {

constexpr double secondsPerMinute = 60, ringStep = 10;
constexpr double leastGapOfMarks = 0.055;  // of the ring: about as wide as "16h"

std::optional<Date> beginOf(const FastingPageFacts& facts) {
  if (facts.running) return facts.running->fast.start;
  if (facts.last) return facts.last->end;
  return std::nullopt;
}

// Whole seconds, so that what has passed and what is left add up. None before the start.
double secondsSince(std::optional<Date> begin, Date now) {
  return begin ? std::max(0.0, std::floor(secondsBetween(*begin, now))) : 0;
}

std::string timerText(double seconds, const NumberFormatter& numbers) {
  const auto whole = static_cast<std::int64_t>(seconds);
  return numbers.string(whole / 3600) + ':' + twoDigits(whole / 60 % 60, numbers) + ':' +
         twoDigits(whole % 60, numbers);
}

// The goal; past it the end of the present zone, and then day by day.
double ringSpan(double seconds, double goal, bool isEating) {
  if (isEating) return std::max(secondsPerHour, secondsPerDay - goal);
  double span = std::max(goal, secondsPerHour);
  for (const double bound : {zoneBounds[3], zoneBounds[4]})
    if (seconds > span) span = std::max(span, bound);
  if (seconds > span) span += std::ceil((seconds - span) / secondsPerDay) * secondsPerDay;
  return span;
}

// The end of the ring is always named, the borders of zones where there is room.
std::vector<double> markPlaces(double span, bool isEating) {
  if (isEating) return {span / 2, span};
  const double gap = leastGapOfMarks * span;
  std::vector<double> places;
  for (const double bound : zoneBounds)
    if (bound > (places.empty() ? 0 : places.back()) + gap && bound + gap < span) places.push_back(bound);
  places.push_back(span);
  return places;
}

std::string goalReached(double left, const PageClients& clients) {
  const std::string pattern =
      left > 0 ? clients.texts.text("{1} to your goal") : clients.texts.text("{1} past your goal");
  return filledIn(pattern, {durationText(std::abs(left), clients)});
}

std::string goalUntil(const std::string& length, Date end, const PageClients& clients) {
  const auto& texts = clients.texts;
  switch (daysFromToday(end, clients)) {
    case -1:
      return filledIn(texts.text("{1}, yesterday {2}"), {length, clockText(end, clients)});
    case 0:
      return filledIn(texts.text("{1}, today {2}"), {length, clockText(end, clients)});
    case 1:
      return filledIn(texts.text("{1}, tomorrow {2}"), {length, clockText(end, clients)});
    default:
      return length + ", " + fixedDateTimeText(end, clients);
  }
}

std::string warningText(const FastingPageFacts& facts, const PageClients& clients) {
  if (facts.running->fast.start > clients.now)
    return clients.texts.text("This fast begins in the future. Check the clock, or change when it started.");
  return facts.overlapped ? overlapText(*facts.overlapped, clients) : std::string{};
}

void sayRunning(FastingPage& page, const FastingPageFacts& facts, double seconds, const PageClients& clients) {
  const auto& texts = clients.texts;
  const Date start = facts.running->fast.start;
  page.isRunning = true;
  page.started = start;
  page.zone = zoneAfter(seconds);
  page.zones = zoneTimeTexts(seconds, clients);
  page.goalText = goalReached(page.goalSeconds - seconds, clients);
  page.warning = warningText(facts, clients);
  page.startLabel = texts.text("Started");
  page.startText = dateTimeText(start, clients);
  page.goal = goalUntil(page.goal, start + Duration{page.goalSeconds}, clients);
  page.button = texts.text("Stop fast");
  page.zoneName = texts.text(displayString(page.zone));
  page.status = filledIn(texts.text("Fasting {1}, {2}, {3}"), {page.duration, page.zoneName, page.goalText});
}

void sayEating(FastingPage& page, const FinishedFastingDataEntry& last, const PageClients& clients) {
  const auto& texts = clients.texts;
  page.isEating = true;
  page.goalText = texts.text("since your last fast");
  page.startLabel = texts.text("Last fast");
  page.startText = durationText(last.duration(), clients);
  page.status = page.zoneName + ", " + page.duration + ' ' + page.goalText;
}

void sayNothingYet(FastingPage& page, const TextLookup& texts) {
  page.invitation = texts.text("Your first fast");
  page.invitationDetail = texts.text("Start it when you have eaten your last meal.");
  page.startLabel = texts.text("Last fast");
  page.status = page.invitation + ": " + page.invitationDetail;
}

}  // namespace

std::vector<ZoneTimeText> zoneTimeTexts(double seconds, const PageClients& clients) {
  std::vector<ZoneTimeText> all;
  for (const auto& [zone, duration, isPresent] : zoneTimes(seconds)) {
    ZoneTimeText text;
    text.zone = zone;
    text.name = clients.texts.text(displayString(zone));
    text.duration = durationText(duration, clients);
    text.isPresent = isPresent;
    text.spoken.append(text.name).append(", ").append(text.duration);
    all.push_back(std::move(text));
  }
  return all;
}

FastingPageFacts fastingPageFacts(std::span<const FastRecord> fasts, std::int64_t nextGoalSeconds, Date now) {
  FastingPageFacts facts{.nextGoalSeconds = nextGoalSeconds};
  std::size_t place = fasts.size();
  for (std::size_t index = 0; index < fasts.size(); ++index) {
    const auto& finished = fasts[index].fast.finished;
    if (!finished) place = std::min(place, index);
    if (finished && (!facts.last || finished->end >= facts.last->end)) facts.last = finished;
  }
  if (place == fasts.size()) return facts;
  facts.running = fasts[place];
  if (const auto partner = overlapPartners(fasts, now)[place]) facts.overlapped = fasts[*partner].fast.start;
  return facts;
}

FastingPage composeFastingPage(const FastingPageFacts& facts, const PageClients& clients) {
  const auto& texts = clients.texts;
  const auto begin = beginOf(facts);
  const double seconds = secondsSince(begin, clients.now);
  FastingPage page;
  page.title = texts.text("Fasting");
  page.goalLabel = texts.text("Goal");
  page.goalSeconds = static_cast<double>(facts.running ? facts.running->fast.goalSeconds : facts.nextGoalSeconds);
  page.goal = goalText(page.goalSeconds, clients.hour, clients.hourMin);
  page.button = texts.text("Start fast");
  page.zoneName = texts.text(displayString(page.zone));
  page.duration = durationText(seconds, clients);
  if (begin) page.elapsed = timerText(seconds, clients.numbers);
  if (facts.running)
    sayRunning(page, facts, seconds, clients);
  else if (facts.last)
    sayEating(page, *facts.last, clients);
  else
    sayNothingYet(page, texts);
  page.startSpoken = page.startLabel + ", " + page.startText;
  page.goalSpoken = page.goalLabel + ", " + page.goal;
  page.goals = goalOffers(std::llround(page.goalSeconds), clients);
  page.spoken = page.zoneName + ", " + page.duration + ", " + page.goalText;
  page.ringSeconds = std::floor(seconds / ringStep) * ringStep;
  page.ringSpan = ringSpan(seconds, page.goalSeconds, page.isEating);
  for (const double place : markPlaces(page.ringSpan, page.isEating))
    page.marks.push_back({place, goalText(place, clients.hour, clients.hourMin)});
  return page;
}

std::string startProblem(std::span<const FastRecord> fasts, Date start, const PageClients& clients) {
  if (!runningFast(fasts)) return {};
  const auto outcome = changingStart(fasts, start, clients.now);
  return outcome ? std::string{} : refusalText(outcome.error(), clients.texts);
}

std::optional<double> untilNextTick(const FastingPageFacts& facts, bool seesSeconds, Date now) {
  const auto begin = beginOf(facts);
  if (!begin || !(facts.running || seesSeconds)) return std::nullopt;
  const double step = seesSeconds ? 1 : secondsPerMinute;
  const double passed = secondsBetween(*begin, now);
  return step - (passed - std::floor(passed / step) * step);
}

}  // namespace mivo::host

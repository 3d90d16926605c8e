// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "host/history/History.h"
#include "host/pages/GoalChoice.h"
#include "mivo/model/LegacyFastingZone.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// What the fasting page is made of, apart from the time: changes with the records and the goal alone.
struct FastingPageFacts {
  std::optional<FastRecord> running = {};
  std::optional<FinishedFastingDataEntry> last = {};  ///< the fast that ended last
  std::optional<Date> overlapped = {};                ///< the start of a fast that the running one shares time with
  std::int64_t nextGoalSeconds = 0;
  bool operator==(const FastingPageFacts&) const = default;
};

/// `fasts` are by start. O(n).
FastingPageFacts fastingPageFacts(std::span<const FastRecord> fasts, std::int64_t nextGoalSeconds, Date now);

/// How long the running fast was in one of the zones.
struct ZoneTimeText {
  LegacyFastingZone zone = LegacyFastingZone::anabolic;
  std::string name, duration;  ///< "Catabolic", "8h 12m"
  std::string spoken;          ///< "Catabolic, 8h 12m"
  bool isPresent = false;
  bool operator==(const ZoneTimeText&) const = default;
};

template <RecordOf<ZoneTimeText> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [zone, name, duration, spoken, isPresent] = record;
  visit("zone", zone);
  visit("name", name);
  visit("duration", duration);
  visit("spoken", spoken);
  visit("isPresent", isPresent);
}

/// The zones that a fast of so many seconds went through.
std::vector<ZoneTimeText> zoneTimeTexts(double seconds, const PageClients& clients);

/// A place where the ring names hours.
struct RingMark {
  double seconds = 0;
  std::string text;  ///< "16h"
  bool operator==(const RingMark&) const = default;
};

template <RecordOf<RingMark> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [seconds, text] = record;
  visit("seconds", seconds);
  visit("text", text);
}

/// The fast that runs, or the eating window since the last one, at one second.
struct FastingPage {
  bool isRunning = false;
  bool isEating = false;  ///< no fast runs, but one has ended
  std::string title;      ///< "Fasting"
  std::string status;     ///< all in one line: "Fasting 5h 12m, Catabolic, 10h 48m to your goal"
  std::string elapsed;    ///< "16:42:08": since the start, or since the last one ended; empty before the first one
  std::string duration;   ///< "16h 42m": the same in words
  LegacyFastingZone zone = LegacyFastingZone::eating;
  std::string zoneName;
  std::string goalText;                      ///< "3h 17m to your goal", "1h 2m past your goal", "since your last fast"
  std::string invitation, invitationDetail;  ///< before the first fast, in the place of all these
  std::string warning;  ///< what is wrong with the running fast: it begins in the future, or overlaps another one
  std::vector<ZoneTimeText> zones;  ///< of the running fast
  std::string startLabel;           ///< "Started", "Last fast"
  std::string startText;            ///< "Today, 20:14"; how long the last fast was; empty before the first one
  std::string startSpoken;          ///< "Started, Today, 20:14"
  std::string goalLabel;            ///< "Goal"
  std::string goal;                 ///< "20h, today 16:42"; "20h" where no fast runs
  std::string goalSpoken;           ///< "Goal, 20h, today 16:42"
  std::string button;               ///< "Stop fast", "Start fast"
  std::string spoken;               ///< "Catabolic, 5h 12m, 10h 48m to your goal"
  double goalSeconds = 0;
  std::vector<GoalOffer> goals;  ///< the usual ones, and which of them it is
  std::optional<Date> started;
  double ringSeconds = 0;  ///< since the start, in steps of ten
  double ringSpan = 0;     ///< seconds of a whole turn
  std::vector<RingMark> marks;
  bool operator==(const FastingPage&) const = default;
};

template <RecordOf<FastingPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [isRunning, isEating, title, status, elapsed, duration, zone, zoneName, goalText, invitation, invitationDetail,
         warning, zones, startLabel, startText, startSpoken, goalLabel, goal, goalSpoken, button, spoken, goalSeconds,
         goals, started, ringSeconds, ringSpan, marks] = record;
  visit("isRunning", isRunning);
  visit("isEating", isEating);
  visit("title", title);
  visit("status", status);
  visit("elapsed", elapsed);
  visit("duration", duration);
  visit("zone", zone);
  visit("zoneName", zoneName);
  visit("goalText", goalText);
  visit("invitation", invitation);
  visit("invitationDetail", invitationDetail);
  visit("warning", warning);
  visit("zones", zones);
  visit("startLabel", startLabel);
  visit("startText", startText);
  visit("startSpoken", startSpoken);
  visit("goalLabel", goalLabel);
  visit("goal", goal);
  visit("goalSpoken", goalSpoken);
  visit("button", button);
  visit("spoken", spoken);
  visit("goalSeconds", goalSeconds);
  visit("goals", goals);
  visit("started", started);
  visit("ringSeconds", ringSeconds);
  visit("ringSpan", ringSpan);
  visit("marks", marks);
}

/// Reads no record and composes no row: what a tick costs is a handful of texts.
FastingPage composeFastingPage(const FastingPageFacts& facts, const PageClients& clients);

/// Why the running fast cannot begin at a date, in a sentence; empty where it can, and where none runs.
std::string startProblem(std::span<const FastRecord> fasts, Date start, const PageClients& clients);

/// When the page says something else, in seconds from now: with the next whole second where seconds are seen, else with
/// the next whole minute. Nothing where time changes nothing.
std::optional<double> untilNextTick(const FastingPageFacts& facts, bool seesSeconds, Date now);

}  // namespace mivo::host

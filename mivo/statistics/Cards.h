// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "mivo/model/LegacyFastingZone.h"
#include "mivo/model/Record.h"
#include "mivo/trends/ZoneTrendDisplay.h"

namespace mivo {

// The cards of the statistics screen, with every text that stands on them, in the user's language. A text that a card
// does not have just now is empty.

/// In the order in which they stand on the screen. The names are those of the report.
enum class CardKind {
  tip,
  start,
  configure,
  summary,
  overlappingFasts,
  donation,
  roadmap,
  healthData,
  addWeight,
  goalWeight,
  badges,
  timeRange,
  fastingChart,
  eatingChart,
  weightChart,
  weightFastingChart,
  trend
};

/// A card that says something and offers at most one thing to do.
struct NoticeCard {
  std::string title = {}, text = {}, button = {};
  bool operator==(const NoticeCard&) const = default;
};

template <RecordOf<NoticeCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, text, button] = record;
  visit("title", title);
  visit("text", text);
  visit("button", button);
}

struct SummaryFigure {
  std::string label, value;
  bool operator==(const SummaryFigure&) const = default;
};

template <RecordOf<SummaryFigure> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [label, value] = record;
  visit("label", label);
  visit("value", value);
}

struct SummaryCard {
  std::string title, period;
  std::array<SummaryFigure, 6> figures;
  bool operator==(const SummaryCard&) const = default;
};

template <RecordOf<SummaryCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, period, figures] = record;
  visit("title", title);
  visit("period", period);
  visit("figures", figures);
}

struct GoalWeightCard {
  std::string title = {};
  std::string remaining = {};                   ///< "3.4 kg to go"; none without a goal or a weight
  std::string current = {}, currentLabel = {};  ///< "72.4 kg", "Current"; none without a weight
  std::string goal = {}, goalLabel = {};        ///< "69.0 kg", "Goal"; none without a goal
  std::string trend = {};                       ///< "-2.6 kg since March 14."; none without a weight
  std::string trendFigure = {};                 ///< "-2.6 kg", where the trend begins with it, to be shown apart
  std::string afterFigure = {};                 ///< what follows it: the rest of the trend, and the outlook
  std::string outlook = {};                     ///< "At this pace you reach your goal around October 6, 2026."
  std::string button = {};                      ///< "Set a goal"; none with one
  std::optional<double> fraction = {};          ///< of the way since the trend began, 0 to 1; none without one
  bool operator==(const GoalWeightCard&) const = default;
};

template <RecordOf<GoalWeightCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, remaining, current, currentLabel, goal, goalLabel, trend, trendFigure, afterFigure, outlook, button,
         fraction] = record;
  visit("title", title);
  visit("remaining", remaining);
  visit("current", current);
  visit("currentLabel", currentLabel);
  visit("goal", goal);
  visit("goalLabel", goalLabel);
  visit("trend", trend);
  visit("trendFigure", trendFigure);
  visit("afterFigure", afterFigure);
  visit("outlook", outlook);
  visit("button", button);
  visit("fraction", fraction);
}

/// One family of badges: the best badge earned, or the first one as long as none is.
struct BadgeFigure {
  std::int64_t threshold = 0;
  std::string number = {};  ///< "1,000": the threshold, for the badge itself
  bool isEarned = false;
  std::string label = {};     ///< "100 fasts", "50 days in a row"
  std::string progress = {};  ///< "239 of 250"
  double fraction = 0;        ///< of the way to the next badge, 0 to 1
  bool operator==(const BadgeFigure&) const = default;
};

template <RecordOf<BadgeFigure> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [threshold, number, isEarned, label, progress, fraction] = record;
  visit("threshold", threshold);
  visit("number", number);
  visit("isEarned", isEarned);
  visit("label", label);
  visit("progress", progress);
  visit("fraction", fraction);
}

struct BadgesCard {
  std::string title;
  BadgeFigure milestone, streak;
  bool operator==(const BadgesCard&) const = default;
};

template <RecordOf<BadgesCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, milestone, streak] = record;
  visit("title", title);
  visit("milestone", milestone);
  visit("streak", streak);
}

/// The picker of the range that trends and charts show.
struct TimeRangeCard {
  std::string title, prompt, selected;
  std::vector<std::string> options = {};  ///< one a range, in the order of the ranges
  std::int64_t selectedIndex = 0;         ///< the place of `selected` among them
  bool operator==(const TimeRangeCard&) const = default;
};

template <RecordOf<TimeRangeCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, prompt, selected, options, selectedIndex] = record;
  visit("title", title);
  visit("prompt", prompt);
  visit("selected", selected);
  visit("options", options);
  visit("selectedIndex", selectedIndex);
}

/// A chart of day bars. The dates that are visible follow its scrolling and are not told here.
struct DayBarsCard {
  std::string title;
  std::string empty;  ///< what to do for a first bar; none where there are bars
  bool operator==(const DayBarsCard&) const = default;
};

template <RecordOf<DayBarsCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, empty] = record;
  visit("title", title);
  visit("empty", empty);
}

struct WeightChartCard {
  std::string title;
  std::string averageLabel;  ///< beside the visible average; none on platforms whose line charts have no header
  std::string empty;         ///< what to do for a first point; none where there are points
  bool operator==(const WeightChartCard&) const = default;
};

template <RecordOf<WeightChartCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, averageLabel, empty] = record;
  visit("title", title);
  visit("averageLabel", averageLabel);
  visit("empty", empty);
}

struct WeightFastingChartCard {
  std::string title, weightLegend, fastingLegend;
  std::string empty;  ///< what to do for a first point; none where there are points
  bool operator==(const WeightFastingChartCard&) const = default;
};

template <RecordOf<WeightFastingChartCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, weightLegend, fastingLegend, empty] = record;
  visit("title", title);
  visit("weightLegend", weightLegend);
  visit("fastingLegend", fastingLegend);
  visit("empty", empty);
}

/// One row of the trends.
struct TrendCard {
  LegacyFastingZone zone;
  std::string section;  ///< "Trends", over the first row
  std::string name;     ///< "Catabolic"
  std::string total;    ///< "84h" in this range, below a day "9h 58m"; none where the calendar cannot tell the range
  std::string detail;   ///< "4–16h · 84h"
  std::string thisLabel, lastLabel;  ///< "This week", "Last week"
  std::string perDay;                ///< "/day", after each average
  ZoneTrendDisplay display;
  bool operator==(const TrendCard&) const = default;
};

template <RecordOf<TrendCard> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [zone, section, name, total, detail, thisLabel, lastLabel, perDay, display] = record;
  visit("zone", zone);
  visit("section", section);
  visit("name", name);
  visit("total", total);
  visit("detail", detail);
  visit("thisLabel", thisLabel);
  visit("lastLabel", lastLabel);
  visit("perDay", perDay);
  fields(display, visit);
}

using CardContent = std::variant<NoticeCard, SummaryCard, GoalWeightCard, BadgesCard, TimeRangeCard, DayBarsCard,
                                 WeightChartCard, WeightFastingChartCard, TrendCard>;

struct Card {
  CardKind kind;
  CardContent content;
  bool operator==(const Card&) const = default;
};

}  // namespace mivo

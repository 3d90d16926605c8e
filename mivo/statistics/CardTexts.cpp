// SPDX-License-Identifier: MIT
#include "mivo/statistics/CardTexts.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "mivo/achievements/Badges.h"
#include "mivo/model/Translatable.h"
#include "mivo/statistics/DonationsFeature.h"
#include "mivo/statistics/GoalWeightCardFeature.h"
#include "mivo/statistics/LineCharts.h"

namespace mivo {
namespace {

using Entity = StreakSettings::CountingEntity;
using Outlook = GoalOutlook::Kind;

std::string streakText(std::int64_t length, Entity entity, const ScreenFormatters& format) {
  return countedText(length, entity, format.texts, format.numbers);
}

std::string inARowText(std::int64_t length, Entity entity, const ScreenFormatters& format) {
  const std::string counted = entity == Entity::days
                                  ? format.texts.plural("{1} day in a row", "{1} days in a row", length)
                                  : format.texts.plural("{1} fast in a row", "{1} fasts in a row", length);
  return filledIn(counted, {format.numbers.string(length)});
}

BadgeFigure badgeFigure(std::int64_t count, const ScreenFormatters& format) {
  const BadgeProgress progress = badgeProgress(badgeThresholds, count);
  const auto rank = static_cast<std::size_t>(std::max<std::int64_t>(0, progress.earnedBadges - 1));
  return {.threshold = badgeThresholds[rank],
          .number = format.numbers.string(badgeThresholds[rank]),
          .isEarned = progress.earnedBadges > 0,
          .progress = progressText(progress, format.texts, format.numbers),
          .fraction = progress.fraction()};
}

std::string signedMass(double weightInKg, WeightUnit unit, const ScreenFormatters& format) {
  const std::string text = format.masses.string(weightInKg, unit);
  return weightInKg > 0 ? '+' + text : text;
}

std::string weightTrendText(const ScreenInput& input, const ScreenFormatters& format) {
  const auto& gained = *input.stats.weightTrendInKg;
  const auto& range = *input.stats.trendTimeRange;
  if (!input.stats.currentWeightInKg.value()) return {};
  if (!gained || !range) return outlookText({.kind = Outlook::noTrend, .date = {}}, format.texts, format.dates);
  return filledIn(format.texts.text("{1} since {2}."), {signedMass(*gained, input.weightUnit, format),
                                                        format.dates.string(range->lowerBound, "MMMMd").value_or("")});
}

/// In most languages the sentence about the trend begins with its figure.
void setFigureApart(GoalWeightCard& card, const ScreenInput& input, const ScreenFormatters& format) {
  const auto& gained = *input.stats.weightTrendInKg;
  const std::string figure = gained ? signedMass(*gained, input.weightUnit, format) : "";
  if (card.trend.starts_with(figure)) card.trendFigure = figure;
  card.afterFigure = card.trend.substr(card.trendFigure.size());
  if (!card.trend.empty() && !card.outlook.empty()) card.afterFigure += ' ';
  card.afterFigure += card.outlook;
}

GoalWeightCardFeature::State goalWeightState(const ScreenInput& input) {
  return {.goalInKg = input.goalWeightInKg,
          .currentWeightInKg = input.stats.currentWeightInKg.value(),
          .weightTrendInKg = input.stats.weightTrendInKg.value(),
          .trendTimeRange = input.stats.trendTimeRange.value(),
          .weightUnit = input.weightUnit};
}

DayBarsCard dayBarsTexts(std::string_view title, const ScrollChartFeature::State& chart,
                         const ScreenFormatters& format) {
  return {.title = format.texts.text(title),
          .empty = chart.data->empty() ? format.texts.text("Start a fast to see your chart.") : ""};
}

/// "84h"; below a day "22h 44m", because it stands beside lengths of single fasts, and 22h would seem another one.
std::optional<std::string> totalText(double seconds, const ScreenFormatters& format) {
  return (seconds < secondsPerDay ? format.hourMin : format.hour).string(seconds);
}

/// All of this range, not the average of a day.
std::string rangeTotalText(double average, const ScreenInput& input, const ScreenFormatters& format) {
  if (!input.daysOfThisRange) return {};
  return totalText(average * *input.daysOfThisRange, format).value_or("");
}

}  // namespace

CardContent tipTexts(const ScreenInput& input, const ScreenFormatters& format) {
  return NoticeCard{.title = format.texts.text(input.tip->title), .text = format.texts.text(input.tip->message)};
}

CardContent startTexts(const ScreenInput&, const ScreenFormatters& format) {
  return NoticeCard{.text = format.texts.text("Get started by doing your first fast."),
                    .button = format.texts.text("Start fast")};
}

CardContent configureTexts(const ScreenInput&, const ScreenFormatters& format) {
  return NoticeCard{
      .text = format.texts.text("Configure cards to show here in Settings -> Statistics and Fasting Zones."),
      .button = format.texts.text("Open Settings")};
}

CardContent overlappingFastsTexts(const ScreenInput&, const ScreenFormatters& format) {
  return NoticeCard{
      .title = format.texts.text("Overlapping Fasts"),
      .text = format.texts.text("Some of your fasts are overlapping. This is invalid and causes incorrect "
                                "statistics. Please correct your fasting data."),
      .button = format.texts.text("Review and fix")};
}

CardContent donationTexts(const ScreenInput&, const ScreenFormatters& format) {
  return NoticeCard{.text = format.texts.text(donationRequest)};
}

CardContent roadmapTexts(const ScreenInput&, const ScreenFormatters& format) {
  return NoticeCard{.button = format.texts.text("Give feedback, suggest ideas and vote on upcoming features")};
}

CardContent healthDataTexts(const ScreenInput&, const ScreenFormatters& format) {
  return NoticeCard{.title = format.texts.text("Health data"),
                    .text = format.texts.text("Allow access to your health data to keep your weight up to date. It "
                                              "stays on this device."),
                    .button = format.texts.text("Allow access")};
}

CardContent addWeightTexts(const ScreenInput& input, const ScreenFormatters& format) {
  return NoticeCard{
      .title = format.texts.text("Add weight"), .text = input.weightProblem, .button = format.texts.text("Save")};
}

CardContent summaryTexts(const ScreenInput& input, const ScreenFormatters& format) {
  const auto& stats = input.stats;
  const auto& texts = format.texts;
  const auto length = [&](double seconds) { return format.hourMin.string(seconds).value_or("0"); };
  const double wholeHours = static_cast<double>(stats.totalHours.value()) * secondsPerHour;
  const double exact = stats.averageFast.value() * static_cast<double>(stats.totalFasts.value());
  const double total = wholeHours < secondsPerDay ? exact : wholeHours;
  return SummaryCard{
      .title = texts.text("Summary"),
      .period = texts.text("All time"),
      .figures = {{{texts.text("Fasts"), format.numbers.string(stats.totalFasts.value())},
                   {texts.text("Total fasting time"), totalText(total, format).value_or("0")},
                   {texts.text("Average fast"), length(stats.averageFast)},
                   {texts.text("Longest fast"), length(stats.longestFast)},
                   {texts.text("Current streak"), streakText(stats.currentStreak, input.countingEntity, format)},
                   {texts.text("Longest streak"), streakText(stats.maxStreak, input.countingEntity, format)}}}};
}

CardContent goalWeightTexts(const ScreenInput& input, const ScreenFormatters& format) {
  const auto& texts = format.texts;
  const auto& goal = input.goalWeightInKg;
  const auto& current = *input.stats.currentWeightInKg;
  const auto mass = [&](double weightInKg) { return format.masses.string(weightInKg, input.weightUnit); };
  const auto state = goalWeightState(input);
  const GoalOutlook outlook = goalOutlook(state, input.now);

  GoalWeightCard card;
  card.title = texts.text("Goal weight");
  card.trend = weightTrendText(input, format);
  card.fraction = goalFraction(state);
  if (current) {
    card.current = mass(*current);
    card.currentLabel = texts.text("Current");
  }
  if (goal) {
    card.goal = mass(*goal);
    card.goalLabel = texts.text("Goal");
    const bool isOnTheWay = current && outlook.kind != Outlook::goalReached;
    if (isOnTheWay) card.remaining = filledIn(texts.text("{1} to go"), {mass(std::abs(*goal - *current))});
    if (outlook.kind != Outlook::noTrend)
      card.outlook = outlookText(outlook, texts, format.dates);  // said by the trend
  } else {
    card.button = texts.text("Set a goal");
  }
  setFigureApart(card, input, format);
  return card;
}

CardContent badgesTexts(const ScreenInput& input, const ScreenFormatters& format) {
  BadgeFigure milestone = badgeFigure(input.stats.totalFasts, format),
              streak = badgeFigure(input.stats.maxStreak, format);
  milestone.label = streakText(milestone.threshold, Entity::fasts, format);
  streak.label = inARowText(streak.threshold, input.countingEntity, format);
  return BadgesCard{
      .title = format.texts.text("Badges"), .milestone = std::move(milestone), .streak = std::move(streak)};
}

CardContent timeRangeTexts(const ScreenInput& input, const ScreenFormatters& format) {
  TimeRangeCard card{.title = format.texts.text("Time range for trends"),
                     .prompt = format.texts.text("Select a time range"),
                     .selected = format.texts.text(displayString(input.timeRange)),
                     .selectedIndex = static_cast<std::int64_t>(input.timeRange)};
  for (const TimeRange range : allTimeRanges) card.options.push_back(format.texts.text(displayString(range)));
  return card;
}

CardContent fastingChartTexts(const ScreenInput& input, const ScreenFormatters& format) {
  return dayBarsTexts("Fasting", input.stats.fastingChartState, format);
}

CardContent eatingChartTexts(const ScreenInput& input, const ScreenFormatters& format) {
  return dayBarsTexts("Eating", input.stats.eatingChartState, format);
}

CardContent weightChartTexts(const ScreenInput& input, const ScreenFormatters& format) {
  const bool hasHeader = lineChartsHaveHeaders(input.platformVersion);
  const bool hasPoints = !weightLogs(input.stats, input.timeRange).empty();
  return WeightChartCard{.title = format.texts.text("Weight"),
                         .averageLabel = hasHeader ? format.texts.text("average") : "",
                         .empty = hasPoints ? "" : format.texts.text("Add a weight to see your chart.")};
}

CardContent weightFastingChartTexts(const ScreenInput& input, const ScreenFormatters& format) {
  const WeightFastingChart chart = weightFastingChart(input.stats, input.timeRange);
  const bool hasPoints = !chart.weightEntries.empty() || !chart.fastingEntries.empty();
  return WeightFastingChartCard{
      .title = format.texts.text("Weight & fasting hours"),
      .weightLegend = format.texts.text("Avg. body weight last 7d"),
      .fastingLegend = format.texts.text("Total fasting h last 3m"),
      .empty = hasPoints ? "" : format.texts.text("Add a weight or a fast to see your chart.")};
}

TrendCard trendTexts(LegacyFastingZone zone, const AverageThisLastTimeRange& averages, const ScreenInput& input,
                     const ScreenFormatters& format) {
  const auto& texts = format.texts;
  const std::string range = texts.text(displayString(input.timeRange));
  const auto around = [&](std::string_view key) {
    return filledIn(texts.text(key, rawValue(input.timeRange)), {range});
  };
  const std::string hours = zoneHours(zone, format.hour, format.numbers);
  std::string total = rangeTotalText(averages.thisTimeRange, input, format);
  return {.zone = zone,
          .section = texts.text("Trends"),
          .name = texts.text(displayString(zone)),
          .total = total,
          .detail = hours.empty() || total.empty() ? hours + total : hours + " · " + total,
          .thisLabel = around(translatableByRange("This {1}")),
          .lastLabel = around(translatableByRange("Last {1}")),
          .perDay = texts.text("/day"),
          .display = {input.timeRange, zone, averages.thisTimeRange, averages.lastTimeRange, texts, format.hourMin}};
}

std::string zoneHours(LegacyFastingZone zone, const DurationFormatter& hour, const NumberFormatter& numbers) {
  if (zone < LegacyFastingZone::anabolic) return {};
  const auto place = static_cast<std::size_t>(zone) - static_cast<std::size_t>(LegacyFastingZone::anabolic);
  const auto hours = [&](std::size_t bound) { return hour.string(zoneBounds[bound]).value_or(""); };
  if (place + 1 == zoneBounds.size()) return hours(place) + '+';
  return numbers.string(static_cast<std::int64_t>(zoneBounds[place] / secondsPerHour)) + "–" + hours(place + 1);
}

}  // namespace mivo

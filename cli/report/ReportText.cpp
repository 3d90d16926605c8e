// SPDX-License-Identifier: MIT
#include "cli/report/ReportText.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "cli/terminal/Bars.h"
#include "cli/terminal/DotPlot.h"
#include "cli/terminal/TextWidth.h"
#include "mivo/model/TimeRange.h"

namespace mivo::cli {
namespace {

using host::Report;

constexpr int pageWidth = 80, margin = 2, textWidth = pageWidth - 2 * margin;

constexpr Ink inkOf(LegacyFastingZone zone) {
  constexpr std::array inks{Ink::fasting,    Ink::eating,  Ink::anabolic,   Ink::catabolic,
                            Ink::fatBurning, Ink::ketosis, Ink::deepKetosis};
  return inks[static_cast<std::size_t>(zone)];
}

/// How many bars a range has: seven days, the weeks that touch a month, twelve months.
constexpr std::size_t barsOf(TimeRange range) {
  constexpr std::array<std::size_t, 3> counts{7, 6, 12};
  return counts[static_cast<std::size_t>(range)];
}

class Page {
 public:
  Page(const Report& figures, WeightUnit weightUnit, const ScreenFormatters& texts, const Paint& inks)
      : report{figures}, unit{weightUnit}, formatters{texts}, paint{inks} {}

  void draw(std::span<const Card> cards) {
    measureTrends(cards);
    for (const Card& card : cards) {
      if (card.kind == CardKind::eatingChart && hasDrawnBars) continue;  // beside the fasting bars
      if (card.kind == CardKind::fastingChart || card.kind == CardKind::eatingChart) dayBars(cards);
      std::visit([&](const auto& content) { drawCard(card.kind, content); }, card.content);
    }
  }

  std::string text() && { return std::move(page); }

 private:
  void drawCard(CardKind kind, const NoticeCard& card) {
    const bool isForTheApp = kind == CardKind::tip || kind == CardKind::donation || kind == CardKind::roadmap ||
                             kind == CardKind::healthData || kind == CardKind::addWeight;
    if (isForTheApp) return;
    if (!card.title.empty()) heading(card.title, {}, kind == CardKind::overlappingFasts ? Ink::warning : Ink::strong);
    if (card.title.empty()) gap();
    paragraph(card.text);
  }

  void drawCard(CardKind, const SummaryCard& card) {
    heading(card.title, card.period);
    constexpr std::size_t perLine = 3;
    constexpr int width = textWidth / static_cast<int>(perLine);
    for (std::size_t first = 0; first < card.figures.size(); first += perLine) {
      if (first > 0) gap();
      std::string values, labels;
      for (std::size_t index = first; index < std::min(first + perLine, card.figures.size()); ++index) {
        values += paint(Ink::strong, card.figures[index].value) + padding(card.figures[index].value, width);
        labels += paint(Ink::faint, card.figures[index].label) + padding(card.figures[index].label, width);
      }
      line(values);
      line(labels);
    }
  }

  void drawCard(CardKind, const GoalWeightCard& card) {
    if (card.current.empty() && card.goal.empty()) return;
    heading(card.title, card.remaining);
    for (const auto& [label, value] : {std::pair{card.currentLabel, card.current}, {card.goalLabel, card.goal}})
      if (!value.empty()) line(paint(Ink::strong, value) + "  " + paint(Ink::faint, label));
    for (const auto& sentence : {card.trend, card.outlook}) paragraph(sentence);
  }

  void drawCard(CardKind, const BadgesCard& card) {
    heading(card.title, {});
    const int labelWidth = std::max(columns(card.milestone.label), columns(card.streak.label)) + 2;
    const int progressWidth = std::max(columns(card.milestone.progress), columns(card.streak.progress));
    const int barWidth = std::max(textWidth - labelWidth - progressWidth - 2, 0);
    for (const BadgeFigure& badge : {card.milestone, card.streak}) {
      const std::string filled = bar(badge.fraction, barWidth);
      line(paint(badge.isEarned ? Ink::strong : Ink::faint, badge.label) + padding(badge.label, labelWidth) +
           paint(Ink::fasting, filled) + padding(filled, barWidth + 2) + paint(Ink::faint, badge.progress));
    }
  }

  void drawCard(CardKind, const TimeRangeCard& card) { heading(card.title, card.selected); }
  void drawCard(CardKind, const DayBarsCard&) {}  // see dayBars

  void drawCard(CardKind, const WeightChartCard& card) {
    heading(card.title, card.averageLabel);
    if (!card.empty.empty()) return paragraph(card.empty);
    weightLine();
  }

  void drawCard(CardKind, const WeightFastingChartCard&) {}  // its lines are the bars and the weights above

  void drawCard(CardKind, const TrendCard& card) {
    if (std::exchange(isFirstTrend, false)) heading(card.section, {});
    gap();
    line(paint(inkOf(card.zone), "●") + ' ' + paint(Ink::strong, card.name) + "  " + paint(Ink::faint, card.detail));
    paragraph(card.display.averageFastTimeRangeText);
    const auto& row = card.display;
    const auto average = [&](const std::string& label, const std::string& value, double fraction) {
      const std::string text =
          padded(label, trendLabelWidth) + "  " + paddedLeft(value, trendValueWidth) + card.perDay + "  ";
      line(text + paint(inkOf(card.zone), bar(fraction, textWidth - columns(text))));
    };
    average(card.thisLabel, row.thisTimeRangeAvg, row.thisTimeRangeFraction);
    average(card.lastLabel, row.lastTimeRangeAvg, row.lastTimeRangeFraction);
  }

  /// So that the bars of all rows begin in one column and can be compared.
  void measureTrends(std::span<const Card> cards) {
    for (const Card& card : cards) {
      const auto* trend = std::get_if<TrendCard>(&card.content);
      if (!trend) continue;
      for (const auto& label : {trend->thisLabel, trend->lastLabel})
        trendLabelWidth = std::max(trendLabelWidth, columns(label));
      for (const auto& value : {trend->display.thisTimeRangeAvg, trend->display.lastTimeRangeAvg})
        trendValueWidth = std::max(trendValueWidth, columns(value));
    }
  }

  // The day bars: a line a period, the fasting chart beside the eating chart where both are shown.

  struct BarColumn {
    const DayBarsCard* card;
    const ScrollChartFeature::State* chart;
    Ink ink;
    std::vector<std::string> durations = {};
    int durationWidth = 0;
  };

  void dayBars(std::span<const Card> cards) {
    hasDrawnBars = true;
    std::vector<BarColumn> columnsShown;
    for (const Card& card : cards) {
      if (card.kind == CardKind::fastingChart)
        columnsShown.push_back({&std::get<DayBarsCard>(card.content), &report.stats.fastingChartState, Ink::fasting});
      if (card.kind == CardKind::eatingChart)
        columnsShown.push_back({&std::get<DayBarsCard>(card.content), &report.stats.eatingChartState, Ink::eating});
    }
    const auto& bars = columnsShown.front().chart->data.value();
    if (bars.empty()) {
      for (const BarColumn& shown : columnsShown) {
        heading(shown.card->title, {});
        paragraph(shown.card->empty);
      }
      return;
    }
    drawBarColumns(columnsShown, bars.size() - std::min(bars.size(), barsOf(report.range)));
  }

  void drawBarColumns(std::vector<BarColumn>& shown, std::size_t first) {
    int labelWidth = 0;
    const auto& labels = shown.front().chart->data.value();
    for (std::size_t index = first; index < labels.size(); ++index)
      labelWidth = std::max(labelWidth, columns(labels[index].xAxisLabel) + 2);
    for (BarColumn& column : shown) fillDurations(column, first);

    const int count = static_cast<int>(shown.size()), width = (textWidth - labelWidth) / count;
    gap();
    std::string titles = padded("", labelWidth);
    for (const BarColumn& column : shown)
      titles += paint(Ink::strong, column.card->title) + padding(column.card->title, width);
    line(titles);
    gap();
    for (std::size_t index = first; index < labels.size(); ++index) {
      std::string text = paint(Ink::faint, labels[index].xAxisLabel) + padding(labels[index].xAxisLabel, labelWidth);
      for (const BarColumn& column : shown) {
        const std::string& duration = column.durations[index - first];
        const std::string filled = bar(column.chart->data.value()[index].value, width - column.durationWidth - 4);
        text += paddedLeft(duration, column.durationWidth) + "  " + paint(column.ink, filled) +
                padding(filled, width - column.durationWidth - 2);
      }
      line(text);
    }
  }

  void fillDurations(BarColumn& column, std::size_t first) {
    const auto& bars = column.chart->data.value();
    for (std::size_t index = first; index < bars.size(); ++index) {
      column.durations.push_back(formatters.hourMin.string(bars[index].value * column.chart->maxTime).value_or("0"));
      column.durationWidth = std::max(column.durationWidth, columns(column.durations.back()));
    }
  }

  // The weights: the smoothed line of the shown range.

  const List<WeightAverageEntry>& averages() const {
    const StatsContainer& stats = report.stats;
    const std::array series{&stats.weightAvgLogsForWeek, &stats.weightAvgLogsForMonth, &stats.weightAvgLogsForYear};
    return series[static_cast<std::size_t>(report.range)]->value();
  }

  void weightLine() {
    const auto& points = averages();
    if (points.empty()) return;
    const auto [least, most] = std::ranges::minmax_element(points, {}, &WeightAverageEntry::value);
    const std::string top = formatters.masses.string(most->value, unit),
                      bottom = formatters.masses.string(least->value, unit);
    const int labelWidth = std::max(columns(top), columns(bottom)) + 2;
    constexpr int height = 6;
    const auto lines = plot(points, textWidth - labelWidth, height, least->value, most->value).lines();
    for (int row = 0; row < height; ++row) {
      const std::string& label = row == 0                                          ? top
                                 : row == height - 1 && most->value > least->value ? bottom
                                                                                   : std::string{};
      line(paint(Ink::faint, paddedLeft(label, labelWidth - 2)) + "  " +
           paint(Ink::weight, lines[static_cast<std::size_t>(row)]));
    }
    const std::string from = formatters.dates.string(points.front().date, "yMMMd").value_or("");
    const std::string to = formatters.dates.string(points.back().date, "yMMMd").value_or("");
    line(padded("", labelWidth) + paint(Ink::faint, from + paddedLeft(to, textWidth - labelWidth - columns(from))));
  }

  static DotPlot plot(const List<WeightAverageEntry>& points, int width, int height, double least, double most) {
    DotPlot dots{width, height};
    const double span = secondsBetween(points.front().date, points.back().date);
    const auto x = [&](const WeightAverageEntry& point) {
      return span > 0 ? secondsBetween(points.front().date, point.date) / span : 0.5;
    };
    const auto y = [&](const WeightAverageEntry& point) {
      return most > least ? (point.value - least) / (most - least) : 0.5;
    };
    dots.point(x(points.front()), y(points.front()));
    for (std::size_t index = 1; index < points.size(); ++index)
      dots.line(x(points[index - 1]), y(points[index - 1]), x(points[index]), y(points[index]));
    return dots;
  }

  // Lines.

  static std::string padding(std::string_view text, int width) { return padded("", width - columns(text)); }

  void heading(std::string_view title, std::string_view note, Ink ink = Ink::strong) {
    gap();
    const std::string right = paddedLeft(note, std::max(textWidth - columns(title), columns(note) + 2));
    line(paint(ink, title) + (note.empty() ? "" : paint(Ink::faint, right)));
    gap();
  }

  void paragraph(std::string_view text) {
    if (text.empty()) return;
    for (const auto& piece : wrapped(text, textWidth)) line(piece);
  }

  /// An empty line, one at most and none at the top.
  void gap() {
    if (!page.empty() && !page.ends_with("\n\n")) page += '\n';
  }

  void line(std::string_view text) {
    const std::size_t length = text.find_last_not_of(' ') + 1;
    if (length > 0) page += padded("", margin);
    page += text.substr(0, length);
    page += '\n';
  }

  const Report& report;
  WeightUnit unit;
  const ScreenFormatters& formatters;
  const Paint& paint;
  std::string page;
  bool hasDrawnBars = false, isFirstTrend = true;
  int trendLabelWidth = 0, trendValueWidth = 0;
};

}  // namespace

std::string reportText(const Report& report, std::span<const Card> cards, WeightUnit weightUnit,
                       const ScreenFormatters& formatters, const Paint& paint) {
  Page page{report, weightUnit, formatters, paint};
  page.draw(cards);
  return std::move(page).text();
}

}  // namespace mivo::cli

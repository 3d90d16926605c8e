// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "drawing/charts/LineChart.h"
#include "host/app/Stamps.h"
#include "host/frontend/ChartPages.h"
#include "host/frontend/FrontendServices.h"
#include "host/pages/DateTimeChoice.h"
#include "host/pages/FastingPage.h"
#include "host/pages/GoalChoice.h"
#include "host/pages/HistoryPage.h"
#include "host/pages/ImportSheet.h"
#include "mivo/roadmap/RoadmapListFeature.h"
#include "mivo/statistics/Cards.h"
#include "mivo/store/Store.h"

namespace mivo::host {

/// An idea of the user's as it is typed, and the address for an answer.
struct Idea {
  std::string text, replyTo;
  bool operator==(const Idea&) const = default;
};

/// A line chart with the place that it was scrolled to.
class KeptLineChart {
 public:
  explicit KeptLineChart(std::function<void()> changes) : changed{std::move(changes)} {}

  /// Takes over what is other than before; of another range it begins at its end.
  const drawing::LineChart& show(const drawing::LineChart::Source& source, WeightUnit unit, const PageClients& clients);
  void didScroll(Date date);
  void didTouch(std::optional<Date> date);

  DateInterval visible() const;
  Stamp stamp() const { return header; }  ///< of its place and its selection

 private:
  void tell() { header = nextStamp(), changed(); }

  std::function<void()> changed;
  std::unique_ptr<drawing::LineChart> chart;
  Date leading;
  Stamp header = nextStamp();
  Subscription headerChanges, selectionChanges;
};

/// What pages are composed of: the app's state, and what is kept for the pages alone. What takes a pass over the
/// records is found when a page asks for it, once for each state.
class PageSource {
 public:
  using State = AppFeature::State;

  /// `changed` is called where a chart tells that it reads differently. All of it outlives this.
  PageSource(const FrontendServices& services, const State& state, std::function<void()> changed);

  const FrontendServices& services;
  const State& state;

  const Dependencies& dependencies() const { return *services.dependencies; }
  const TextLookup& texts() const { return *dependencies().texts; }
  PageClients clients() const { return pageClients(dependencies(), dependencies().date->now()); }
  drawing::DayBarsClients barClients() const;
  bool lineChartsScroll() const;
  std::vector<Card> cards() const;

  const FastingPageFacts& fasting() const;
  const HistoryFacts& history() const;
  const std::vector<HistoryMonth>& historyMonths() const;
  Stamp historyStamp() const { return history(), rowsTold; }  ///< another one where a row reads differently
  /// Another one on another day, whose texts of dates are others, and after `retell`.
  Stamp day() const;
  void retell() { retold = nextStamp(); }

  const drawing::LineChart& weightChart() const;
  const drawing::LineChart& weightFastingChart() const;
  ImportSheet importSheet() const;

  Observed<GoalEntry> goal = goalEntry(0);
  Observed<DateTimeEntry> date = DateTimeEntry{};
  Observed<bool> isDateRefused = false;  ///< what was typed last is no date
  Observed<Idea> idea = Idea{};
  Observed<Stamp> tick = Stamp{0}, tip = Stamp{0};
  Observed<Stamp> told = Stamp{0};  ///< another one where a reminder was told
  Observed<BarRange> seenFastingBars = BarRange{}, seenEatingBars = BarRange{};
  mutable KeptLineChart weights, weightsAndFasting;
  /// Only while it is open.
  std::unique_ptr<Store<RoadmapListFeature>> roadmap;

 private:
  mutable std::vector<Stamp> fastingRead, historyRead, monthsRead;
  mutable FastingPageFacts fastingFacts;
  mutable HistoryFacts historyFacts;
  mutable std::vector<HistoryMonth> months;
  mutable Stamp rowsTold = nextStamp();
  mutable Date toldAt;
  mutable Stamp retold = nextStamp();
  mutable ImportSheet lastImport;
};

}  // namespace mivo::host

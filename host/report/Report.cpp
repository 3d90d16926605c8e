// SPDX-License-Identifier: MIT
#include "host/report/Report.h"

#include <array>
#include <cstdint>
#include <memory>
#include <span>

#include "mivo/calculations/RangeStarts.h"
#include "mivo/calculations/Recomputed.h"
#include "mivo/statistics/ComposeScreen.h"
#include "mivo/statistics/ScreenInput.h"

namespace mivo::host {
namespace {

struct StandingClock final : DateGenerator {
  explicit StandingClock(Date instant) : date{instant} {}
  Date now() const override { return date; }
  Date date;
};

/// Version 4 in form, and counted up from 1.
struct NumberedUUIDs final : UUIDGenerator {
  UUID next() const override { return {0x4000, std::uint64_t{1} << 63 | ++last}; }
  void fill(std::span<UUID> ids) const override {
    for (UUID& id : ids) id = next();
  }
  mutable std::uint64_t last = 0;
};

/// The border has said what is wrong with the records; the module need not say it again.
struct SilentReporter final : IssueReporter {
  void report(std::string_view, const std::source_location&) const override {}
};

}  // namespace

void fillReportClients(Dependencies& clients, const ReportSettings& settings) {
  clients.date = std::make_shared<StandingClock>(settings.now);
  clients.uuid = std::make_shared<NumberedUUIDs>();
  clients.calendar = clients.currentCalendar = settings.calendar;
  clients.issueReporter = std::make_shared<SilentReporter>();
}

Report makeReport(const History& history, const ReportSettings& settings) {
  Report report{
      settings.now, settings.range,
      recomputed(StatsContainer::empty(), entries(history.fasts), settings.streaks, settings.range, settings.now)};
  report.stats.updateWeightChart(StatsContainer::update(history.weights));
  return report;
}

std::vector<Card> screen(const Report& report, const ReportSettings& settings,
                         const DashboardSettingsFeature::State& flags) {
  ScreenInput input{.stats = report.stats, .timeRange = report.range, .dashboardSettings = flags, .now = report.now};
  input.countingEntity = settings.streaks.countingEntity;
  input.daysOfThisRange = daysOfThisRange(report.range, *settings.calendar, report.now);
  input.weightUnit = settings.weightUnit;
  return composeScreen(input, screenFormatters());
}

std::vector<ZoneTrendDisplay> trends(const Report& report) {
  const StatsContainer& stats = report.stats;
  const std::array<const AverageThisLastTimeRange*, allFastingZones.size()> averages{
      &*stats.fastingAverages,    &*stats.eatingAverages,  &*stats.anabolicAverages,   &*stats.catabolicAverages,
      &*stats.fatBurningAverages, &*stats.ketosisAverages, &*stats.deepKetosisAverages};
  std::vector<ZoneTrendDisplay> rows;
  for (const LegacyFastingZone zone : allFastingZones) {
    const auto& [thisAverage, lastAverage] = *averages[static_cast<std::size_t>(zone)];
    rows.emplace_back(report.range, zone, thisAverage, lastAverage);
  }
  return rows;
}

}  // namespace mivo::host

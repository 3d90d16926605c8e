// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include "adapters/icu/Calendars.h"
#include "adapters/icu/LocaleFormatters.h"
#include "adapters/icu/UserLocale.h"
#include "adapters/locale/MessageCatalogue.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "mivo/statistics/ComposeScreen.h"

namespace bench {
namespace {

using mivo::AverageThisLastTimeRange;

mivo::StatsContainer someStats() {
  mivo::StatsContainer stats = mivo::StatsContainer::empty();
  stats.totalFasts = 239;
  stats.totalHours = 3960;
  stats.averageFast = 59640;
  stats.longestFast = 148320;
  stats.currentStreak = 25;
  stats.maxStreak = 57;
  for (auto* averages :
       {&stats.fastingAverages, &stats.eatingAverages, &stats.anabolicAverages, &stats.catabolicAverages,
        &stats.fatBurningAverages, &stats.ketosisAverages, &stats.deepKetosisAverages})
    *averages = AverageThisLastTimeRange{56940, 62400};
  stats.currentWeightInKg = 72.4;
  stats.weightTrendInKg = -2.6;
  stats.trendTimeRange = mivo::ClosedDateRange{mivo::dateSince1970(1765000000), mivo::dateSince1970(1772366400)};
  return stats;
}

/// Every card, with the formatters and the catalogue that an app uses; the trend sentences are there.
void wholeScreen(benchmark::State& state, const char* language) {
  const mivo::StatsContainer stats = someStats();
  mivo::DashboardSettingsFeature::State flags;
  flags.showKetosisHours = true;
  flags.showDeepKetosisHours = true;
  const mivo::ScreenInput input{.stats = stats,
                                .timeRange = mivo::TimeRange::week,
                                .dashboardSettings = flags,
                                .now = mivo::dateSince1970(1772366400),
                                .tip = mivo::Tip{"goal", "Choose your goal", "Tap the goal on the Fasting tab."},
                                .showHealthKitCard = true,
                                .daysOfThisRange = 3.5,
                                .goalWeightInKg = 69};
  const auto zone = mivo::adapters::loadTimeZone("Europe/Berlin").value();
  const auto calendar = mivo::adapters::makeCalendar("gregorian", zone, 2).value();
  const auto formatters =
      mivo::adapters::makeFormatters(mivo::adapters::UserLocale::parse(language).value(), *calendar);
  const mivo::adapters::MessageCatalogue texts{language};
  const mivo::ScreenFormatters words{.texts = texts,
                                     .hourMin = *formatters.hourMinDurationUnitFormatter,
                                     .hour = *formatters.hourDurationUnitFormatter,
                                     .numbers = *formatters.numberFormatter,
                                     .masses = *formatters.massFormatter,
                                     .dates = *formatters.dateFormatter};
  if (mivo::composeScreen(input, words).size() != 20) return state.SkipWithError("wrong answer, not timed");
  for (auto _ : state) benchmark::DoNotOptimize(mivo::composeScreen(input, words));
}

BENCHMARK_CAPTURE(wholeScreen, english, "en-US")->Name("composing the screen, English");  // goal: 50 us
BENCHMARK_CAPTURE(wholeScreen, german, "de-DE")->Name("composing the screen, German");

}  // namespace
}  // namespace bench

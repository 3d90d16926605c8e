// SPDX-License-Identifier: MIT
#include "data/generate/SampleHistories.h"

#include <chrono>
#include <cstddef>
#include <vector>

#include "data/generate/Eater.h"
#include "data/generate/Weigher.h"

namespace mivo::data {
namespace {

using namespace std::chrono;

constexpr Date samplesEnd = dateSince1970(1772366400);

constexpr local_days on(int y, unsigned m, unsigned d) { return local_days{year_month_day{year{y}, month{m}, day{d}}}; }

host::History threeWeeks() {
  const std::vector<Habit> habits{
      {on(2026, 2, 8), "Europe/Berlin", 20h + 10min, 14h, 9, "first one!"},
      {on(2026, 2, 16), "Europe/Berlin", 19h + 50min, 16h, 12, "now 16:8"},
  };
  const std::vector<Milestone> weight{{on(2026, 2, 8), 82900}, {on(2026, 3, 1), 81600}};
  return {Eater{habits, 24}.fasts(samplesEnd), weighings(weight, habits, 4, samplesEnd, 22), {}};
}

host::History oneYear() {
  const std::vector<Habit> habits{
      {on(2025, 2, 24), "Europe/Berlin", 20h, 14h, 8, "off we go"},
      {on(2025, 3, 24), "Europe/Berlin", 19h + 40min, 16h, 13},
      {on(2025, 8, 9), "Europe/Athens", 20h + 45min, 14h, 3, "on holiday"},
      {on(2025, 8, 24), "Europe/Berlin", 19h + 40min, 16h, 12, "back home"},
      {on(2025, 12, 20), "Europe/Berlin", 20h + 30min, 14h, 3},
      {on(2026, 1, 5), "Europe/Berlin", 19h + 10min, 18h, 14, "new year, 18:6"},
  };
  const std::vector<Milestone> weight{
      {on(2025, 2, 24), 88600}, {on(2025, 3, 17), 86400}, {on(2025, 6, 20), 81300},  {on(2025, 8, 9), 79400},
      {on(2025, 8, 24), 80300}, {on(2025, 9, 15), 79200}, {on(2025, 12, 18), 78900},  // the plateau
      {on(2026, 1, 4), 80600},  {on(2026, 1, 20), 79100}, {on(2026, 3, 1), 76900},
  };
  return {Eater{habits, 1201}.fasts(samplesEnd), weighings(weight, habits, 5, samplesEnd, 1202), {}};
}

host::History tenYears() {
  const std::vector<Habit> habits{
      {on(2013, 1, 7), "America/New_York", 20h, 16h, 96},
      {on(2016, 7, 2), "Europe/Lisbon", 21h, 15h, 48, "two weeks in Lisbon"},
      {on(2016, 7, 17), "America/New_York", 20h, 16h, 96},
      {on(2017, 9, 30), "Europe/London", 19h + 20min, 16h, 96, "moved to London"},
      {on(2019, 4, 13), "Asia/Tokyo", 19h, 16h, 60, "cherry blossoms"},
      {on(2019, 4, 28), "Europe/London", 19h + 20min, 17h, 104},
      {on(2020, 3, 23), "Europe/London", 18h + 30min, 18h, 160, "kitchen is the office now"},
      {on(2021, 10, 2), "Australia/Sydney", 18h + 40min, 18h, 120, "moved to Sydney"},
      {on(2023, 1, 14), "Asia/Kolkata", 20h, 16h, 40, "six weeks in Pune"},
      {on(2023, 2, 25), "Australia/Sydney", 18h + 40min, 18h, 120},
      {on(2024, 3, 30), "Europe/Berlin", 19h, 18h, 136, "moved to Berlin"},
      {on(2025, 7, 5), "America/St_Johns", 18h + 30min, 18h, 48, "icebergs"},
      {on(2025, 7, 26), "Europe/Berlin", 19h, 18h, 136},
  };
  const std::vector<Milestone> weight{
      {on(2015, 9, 1), 94700},   {on(2016, 6, 1), 86500},  {on(2017, 9, 30), 83000},  {on(2018, 12, 20), 84400},
      {on(2020, 3, 23), 82100},  {on(2021, 10, 2), 79000}, {on(2022, 12, 30), 80200}, {on(2024, 3, 30), 77600},
      {on(2025, 12, 20), 76100}, {on(2026, 1, 4), 77300},  {on(2026, 3, 1), 76000},
  };
  constexpr std::size_t count = 3650;
  auto fasts = Eater{habits, 3650}.fasts(samplesEnd);
  fasts.erase(fasts.begin(), fasts.end() - static_cast<std::ptrdiff_t>(count));
  return {std::move(fasts), weighings(weight, habits, 3, samplesEnd, 3651), {}};
}

}  // namespace

std::optional<host::History> sampleHistory(std::string_view name) {
  if (name == sampleNames[0]) return threeWeeks();
  if (name == sampleNames[1]) return oneYear();
  if (name == sampleNames[2]) return tenYears();
  return std::nullopt;
}

}  // namespace mivo::data

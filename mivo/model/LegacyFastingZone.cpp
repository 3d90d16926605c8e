// SPDX-License-Identifier: MIT
#include "mivo/model/LegacyFastingZone.h"

#include <cstddef>

namespace mivo {
namespace {

struct Row {
  std::string_view rawValue, caseName, displayString;
};

constexpr std::array<Row, 7> rows{{{"Fasting", "fasting", "Fasting"},
                                   {"Eating", "eating", "Eating"},
                                   {"Anabolic (0-4h)", "anabolic", "Anabolic"},
                                   {"Catabolic (4-16h)", "catabolic", "Catabolic"},
                                   {"Fat Burning (16-24h)", "fatBurning", "Fat Burning"},
                                   {"Ketosis (24-72h)", "ketosis", "Ketosis"},
                                   {"Deep Ketosis (72h+)", "deepKetosis", "Deep Ketosis"}}};

constexpr const Row& row(LegacyFastingZone zone) { return rows[static_cast<std::size_t>(zone)]; }

}  // namespace

std::string_view rawValue(LegacyFastingZone zone) { return row(zone).rawValue; }

std::string_view caseName(LegacyFastingZone zone) { return row(zone).caseName; }

std::string_view displayString(LegacyFastingZone zone) { return row(zone).displayString; }

}  // namespace mivo

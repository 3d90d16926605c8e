// SPDX-License-Identifier: MIT
#include "mivo/model/LegacyFastingZone.h"

#include <cstddef>

#include "mivo/model/Translatable.h"

namespace mivo {
namespace {

struct Row {
  std::string_view rawValue, caseName, displayString;
};

constexpr std::array<Row, 7> rows{{{"Fasting", "fasting", translatable("Fasting")},
                                   {"Eating", "eating", translatable("Eating")},
                                   {"Anabolic (0-4h)", "anabolic", translatable("Anabolic")},
                                   {"Catabolic (4-16h)", "catabolic", translatable("Catabolic")},
                                   {"Fat Burning (16-24h)", "fatBurning", translatable("Fat Burning")},
                                   {"Ketosis (24-72h)", "ketosis", translatable("Ketosis")},
                                   {"Deep Ketosis (72h+)", "deepKetosis", translatable("Deep Ketosis")}}};

constexpr const Row& row(LegacyFastingZone zone) { return rows[static_cast<std::size_t>(zone)]; }

}  // namespace

std::string_view rawValue(LegacyFastingZone zone) { return row(zone).rawValue; }

std::string_view caseName(LegacyFastingZone zone) { return row(zone).caseName; }

std::string_view displayString(LegacyFastingZone zone) { return row(zone).displayString; }

}  // namespace mivo

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "host/history/History.h"
#include "mivo/model/Translatable.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::host {

// What every file format of ours takes in a field, and how it says so.

/// The goal of a fast whose record names none: 16 hours.
inline constexpr std::int64_t defaultGoalSeconds = 57600;

/// Ten thousand years.
inline constexpr double largestGoalHours = 87'660'000;

inline constexpr std::size_t longestNoteInBytes = 65536;

inline constexpr std::string_view expectedDate =
    "expected a date and time of the years 1 to 9999, as in 2026-03-01T12:00:00Z";
inline constexpr std::string_view expectedEndAfterStart = translatable("expected an end after the start");
inline constexpr std::string_view expectedNote = "expected UTF-8 text of at most 65536 bytes";
inline constexpr std::string_view expectedWeight = "expected kilograms above 0 and at most 1000";
static_assert(largestWeightInKg == 1000);
inline constexpr std::string_view expectedTypedWeight =
    "expected a weight above 0 and at most 700 kg, as in 81.4, 81.4kg, 179lb or \"12st 11lb\"";
static_assert(largestTypedWeightInKg == 700);

/// Whether a text can be kept as a note.
bool isNote(std::string_view text);

/// "expected an end, since line 4 has a fast that is still running"
std::string expectedEnd(std::int64_t lineOfRunningFast);

/// Counts a fast that ends before it starts, and keeps the place of the first. `bad` names file, line, column and
/// value.
void noteEndBeforeStart(std::optional<KeptOddity>& oddity, BadRecord bad);

}  // namespace mivo::host

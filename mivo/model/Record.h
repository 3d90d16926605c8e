// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <type_traits>

namespace mivo {

/// Matches a record and its const form, for `fields`:
///
///     template <RecordOf<StreakSettings> Record, class Visit>
///     void fields(Record& record, Visit&& visit) {
///       auto& [countingEntity, ignoreFastGoal, maxBreakHours] = record;  // a field left out does not compile
///       visit("countingEntity", countingEntity);
///       ...
///     }
///
/// One such list a record: printing, reports, comparison of states in tests and copying all walk it.
template <class Candidate, class Record>
concept RecordOf = std::same_as<std::remove_const_t<Candidate>, Record>;

}  // namespace mivo

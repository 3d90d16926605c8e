// SPDX-License-Identifier: MIT
#pragma once

#include "adapters/time/DateSystem.h"

namespace mivo::adapters {

/// The Gregorian calendar, carried back to the year 1: no days were dropped in 1582. Cost: 2 to 5 ns.
class GregorianDates final : public DateSystem {
 public:
  std::string_view identifier() const override;
  DateFields fields(std::chrono::local_days day) const override;
  std::optional<std::chrono::local_days> addingMonths(std::chrono::local_days day, std::int64_t count) const override;
  std::optional<std::chrono::local_days> addingYears(std::chrono::local_days day, std::int64_t count) const override;
};

}  // namespace mivo::adapters

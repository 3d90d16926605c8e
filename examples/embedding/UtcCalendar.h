// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/platform/Calendar.h"

/// The Gregorian calendar in UTC with weeks that begin on Monday: all that <chrono> needs no data for. A host whose
/// users live in time zones hands in a calendar that knows them.
class UtcCalendar final : public mivo::Calendar {
 public:
  std::string_view identifier() const override { return mivo::gregorianIdentifier; }
  std::string_view timeZone() const override { return "UTC"; }
  int firstWeekday() const override { return 2; }

  std::optional<mivo::Date> adding(mivo::CalendarComponent component, std::int64_t count,
                                   mivo::Date date) const override;
  std::optional<mivo::Date> lastMatch(const mivo::MatchingComponents& components, mivo::Date before) const override;
  std::optional<mivo::Date> startOfDay(mivo::Date date) const override;
  std::optional<mivo::Date> endOfDay(mivo::Date date) const override;
  std::optional<mivo::Date> startOfWeek(mivo::Date date) const override;
  std::optional<mivo::Date> endOfWeek(mivo::Date date) const override;
  std::optional<mivo::Date> startOfMonth(mivo::Date date) const override;
  std::optional<mivo::Date> endOfMonth(mivo::Date date) const override;
  std::optional<std::int64_t> calendarDatesBetween(mivo::Date dateOne, mivo::Date dateTwo) const override;
  std::shared_ptr<const mivo::Calendar> gregorian() const override;
};

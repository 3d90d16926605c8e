// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/pages/PageClients.h"
#include "tests/histories/ZoneRows.h"
#include "tests/support/FixedClients.h"
#include "tests/support/Instants.h"

namespace mivo::tests {

/// "09:05", "06-09", "2026-06-09 09:05": what a skeleton asks for, in UTC.
struct NumericDates final : DateFormatter {
  std::optional<std::string> string(Date date, std::string_view skeleton) const override {
    const std::string all = text(date);
    if (skeleton == "jm") return all.substr(11, 5);
    if (skeleton == "y") return all.substr(0, 4);
    const std::string day = all.substr(skeleton.starts_with("EEEdMMMy") ? 0 : 5);
    return day.substr(0, day.size() - (skeleton.ends_with("jm") ? 3 : 9));
  }
};

/// What composes pages in English, with a calendar of a zone; texts of dates are in UTC.
struct Pages {
  explicit Pages(const char* zone = "UTC") : calendar{gregorianCalendar(zone)} {}

  PageClients at(Date now) const {
    return {.now = now,
            .calendar = *calendar,
            .texts = texts,
            .dates = dates,
            .hourMin = hourMin,
            .hour = hour,
            .numbers = numbers,
            .masses = masses};
  }

  std::shared_ptr<const Calendar> calendar;
  EnglishTexts texts;
  NumericDates dates;
  EnglishHoursAndMinutes hourMin;
  EnglishHours hour;
  PlainNumbers numbers;
  PlainMasses masses;
};

}  // namespace mivo::tests

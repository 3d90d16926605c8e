// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "mivo/model/Date.h"
#include "mivo/platform/Dependencies.h"

namespace mivo {

/// The instant that a page is composed for, and what puts it into the user's words.
struct PageClients {
  Date now;
  const Calendar& calendar;
  const TextLookup& texts;
  const DateFormatter& dates;
  const DurationFormatter &hourMin, &hour;
  const NumberFormatter& numbers;
  const MassFormatter& masses;
};

/// Those of a host, which must outlive them. All but the date are to be there.
PageClients pageClients(const Dependencies& dependencies, Date now);

/// "09": of a clock, in the user's digits.
std::string twoDigits(std::int64_t number, const NumberFormatter& numbers);

/// "16h 42m" in the user's language; never negative.
std::string durationText(double seconds, const PageClients& clients);

}  // namespace mivo

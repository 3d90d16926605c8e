// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "adapters/icu/UserLocale.h"
#include "host/place/WeekCalendar.h"
#include "mivo/platform/Dependencies.h"

namespace mivo::app {

class FollowedTexts;

/// Keeps a calendar and the texts of dates in the time zone that the system is set to, which may change while the app
/// runs: the clients are made once, and answer in the zone that was last taken over.
class SystemZone {
 public:
  SystemZone(std::shared_ptr<host::WeekCalendar> calendar, adapters::UserLocale locale);

  /// Puts the texts of dates where the module looks for them.
  void fill(Dependencies& clients) const;

  /// Takes over the zone of the system. Its name, where that is another one than before; nothing where it is not, or
  /// cannot be read. Thread: one at a time, while the clients are used by any. Cost: reads a link.
  std::optional<std::string> follow();

 private:
  std::shared_ptr<host::WeekCalendar> calendar;
  adapters::UserLocale locale;
  std::shared_ptr<FollowedTexts> texts;
};

}  // namespace mivo::app

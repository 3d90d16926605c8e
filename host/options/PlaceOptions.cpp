// SPDX-License-Identifier: MIT
#include "host/options/PlaceOptions.h"

#include <utility>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "adapters/zoneinfo/TimeZoneNames.h"
#include "host/dates/DateText.h"
#include "host/history/FieldRules.h"
#include "host/text/BadRecord.h"

namespace mivo::host {

tl::unexpected<std::string> wrong(std::string_view option, std::string_view expected, std::string_view found) {
  return tl::unexpected{std::string{option} + ": " + std::string{expected} + ", found \"" + quotable(found) + '"'};
}

tl::unexpected<std::string> wrong(std::string_view option, const std::string& sentence) {
  return tl::unexpected{std::string{option} + ": " + sentence};
}

Read<std::shared_ptr<const adapters::TimeZone>> readTimeZone(const std::string& name) {
  if (!name.empty()) {
    auto zone = adapters::loadTimeZone(name);
    return zone ? std::move(zone) : wrong("--time-zone", zone.error());
  }
  const auto systems = adapters::systemTimeZoneName();
  if (!systems) return tl::unexpected{systems.error()};
  return adapters::loadTimeZone(*systems);
}

Read<adapters::UserLocale> readLocale(const std::string& tag) {
  if (tag.empty()) return adapters::UserLocale::system();
  auto parsed = adapters::UserLocale::parse(tag);
  return parsed ? std::move(parsed) : wrong("--locale", parsed.error());
}

Read<Date> readDate(std::string_view option, std::string_view text, const adapters::TimeZone& zone) {
  const auto date = parseDateText(text);
  const auto found = date && date->hasTime ? instant(*date, zone) : std::nullopt;
  return found ? Read<Date>{*found} : wrong(option, expectedDate, text);
}

}  // namespace mivo::host

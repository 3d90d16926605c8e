// SPDX-License-Identifier: MIT
#include "cli/options/OptionValues.h"

#include <array>
#include <charconv>
#include <utility>

#include "adapters/time/TimeZoneNames.h"
#include "host/dates/DateText.h"
#include "host/history/FieldRules.h"
#include "host/text/BadRecord.h"

namespace mivo::cli {

tl::unexpected<std::string> wrong(std::string_view option, std::string_view expected, std::string_view found) {
  return tl::unexpected{std::string{option} + ": " + std::string{expected} + ", found \"" + host::quotable(found) +
                        '"'};
}

tl::unexpected<std::string> wrong(std::string_view option, const std::string& sentence) {
  return tl::unexpected{std::string{option} + ": " + sentence};
}

Read<bool> readFormat(std::string_view text) {
  constexpr std::array<Choice<bool>, 2> formats{{{"text", false}, {"json", true}}};
  return readChoice<bool>("--format", "expected text or json", formats, text);
}

Read<std::int64_t> readNumber(std::string_view option, std::string_view expected, std::string_view text,
                              std::int64_t low, std::int64_t high) {
  std::int64_t value = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec != std::errc{} || read.ptr != text.data() + text.size() || value < low || value > high)
    return wrong(option, expected, text);
  return value;
}

Read<std::shared_ptr<const adapters::TimeZone>> readTimeZone(const std::string& name) {
  if (!name.empty()) {
    auto zone = adapters::TimeZone::load(name);
    return zone ? std::move(zone) : wrong("--time-zone", zone.error());
  }
  const auto systems = adapters::systemTimeZoneName();
  if (!systems) return tl::unexpected{systems.error()};
  return adapters::TimeZone::load(*systems);
}

Read<adapters::UserLocale> readLocale(const std::string& tag) {
  if (tag.empty()) return adapters::UserLocale::system();
  auto parsed = adapters::UserLocale::parse(tag);
  return parsed ? std::move(parsed) : wrong("--locale", parsed.error());
}

Read<Date> readDate(std::string_view option, std::string_view text, const adapters::TimeZone& zone) {
  const auto date = host::parseDateText(text);
  const auto instant = date && date->hasTime ? host::instant(*date, zone) : std::nullopt;
  return instant ? Read<Date>{*instant} : wrong(option, host::expectedDate, text);
}

}  // namespace mivo::cli

// SPDX-License-Identifier: MIT
#include "web/engine/ReadOptions.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

#include "adapters/json/NlohmannDecoder.h"
#include "host/dates/DateText.h"
#include "host/text/BadRecord.h"
#include "mivo/weights/WeightUnits.h"

namespace mivo::web {
namespace {

using namespace std::chrono;

/// Reads fields of one object into their places, up to the first that is wrong.
class FieldReader {
 public:
  FieldReader(const JSONValue& read, std::string path) : object{read}, prefix{std::move(path)} {}

  void text(const char* key, std::string_view expected, auto&& take) {
    read(key, expected, [&](const JSONValue& value) { return value.text() && take(*value.text()); });
  }

  void whole(const char* key, std::string_view expected, std::int64_t low, std::int64_t high, auto&& take) {
    read(key, expected, [&](const JSONValue& value) {
      const auto number = value.whole();
      const bool isGood = number && *number >= low && *number <= high;
      if (isGood) take(*number);
      return isGood;
    });
  }

  void flag(const char* key, bool& into) {
    read(key, "expected true or false", [&](const JSONValue& value) {
      const bool* const given = std::get_if<bool>(&value.content);
      if (given) into = *given;
      return given != nullptr;
    });
  }

  /// `take` says whether it could use the value.
  void read(const char* key, std::string_view expected, auto&& take) {
    known.push_back(key);
    const JSONValue* const value = object.member(key);
    if (!fault.empty() || !value || take(*value)) return;
    fault = prefix + key + ": " + std::string{expected};
    if (value->text()) fault += ", found \"" + host::quotable(*value->text()) + '"';
  }

  /// What is wrong, if anything; to be asked at the end.
  std::string sentence() const {
    if (!fault.empty()) return fault;
    for (const auto& [name, value] : *object.object())
      if (std::ranges::find(known, name) == known.end())
        return prefix + host::quotable(name) + ": there is no such option";
    return {};
  }

 private:
  const JSONValue& object;
  std::string prefix, fault;
  std::vector<std::string_view> known;
};

bool takeTransitions(const JSONValue& list, std::vector<adapters::Transition>& into) {
  if (!list.array()) return false;
  into.reserve(list.array()->size());
  for (const JSONValue& change : *list.array()) {
    if (!change.array() || change.array()->size() != 2) return false;
    const auto at = change.array()->front().whole(), offset = change.array()->back().whole();
    if (!at || !offset) return false;
    into.push_back({sys_seconds{seconds{*at}}, seconds{*offset}});
  }
  return true;
}

tl::expected<std::shared_ptr<const adapters::TimeZone>, std::string> readZone(const JSONValue& zone) {
  if (!zone.object()) return tl::unexpected{std::string{"timeZone: expected an object"}};
  std::string name;
  adapters::Transitions known;
  FieldReader fields{zone, "timeZone."};
  fields.text("name", "expected a name", [&](std::string_view text) { return name = text, !text.empty(); });
  fields.whole("firstOffset", "expected seconds", -86'399, 86'399,
               [&](std::int64_t offset) { known.firstOffset = seconds{offset}; });
  fields.read("transitions", "expected pairs of seconds since 1970 and of an offset in seconds",
              [&](const JSONValue& list) { return takeTransitions(list, known.list); });
  fields.whole("lastYear", "expected a year from 1 to 9999", 1, 9999,
               [&](std::int64_t last) { known.lastYear = year{static_cast<int>(last)}; });
  if (std::string wrong = fields.sentence(); !wrong.empty()) return tl::unexpected{std::move(wrong)};
  return adapters::TimeZone::fromTransitions(std::move(name), std::move(known));
}

bool takeRange(std::string_view name, TimeRange& range) {
  const auto found = std::ranges::find(allTimeRanges, name, [](TimeRange each) { return rawValue(each); });
  if (found != allTimeRanges.end()) range = *found;
  return found != allTimeRanges.end();
}

bool takeCount(std::string_view name, StreakSettings& streaks) {
  streaks.countingEntity =
      name == "fasts" ? StreakSettings::CountingEntity::fasts : StreakSettings::CountingEntity::days;
  return name == "fasts" || name == "days";
}

}  // namespace

tl::expected<EngineOptions, std::string> readOptions(std::string_view json) {
  const JSONValue options = adapters::NlohmannDecoder{}.decoded(json);
  if (!options.object()) return tl::unexpected{std::string{"options: expected an object"}};

  EngineOptions read;
  std::optional<Date> now;
  int firstWeekday = 2;
  auto zone = adapters::TimeZone::fromTransitions("UTC", {});
  FieldReader fields{options, ""};
  fields.text("now", "expected a date and time with its offset", [&](std::string_view text) {
    const auto date = host::parseDateText(text);
    now = date ? host::instant(*date) : std::nullopt;
    return now.has_value();
  });
  fields.text("range", "expected week, month or year",
              [&](std::string_view text) { return takeRange(text, read.report.range); });
  fields.whole("firstWeekday", "expected 1 (Sunday) to 7 (Saturday)", 1, 7,
               [&](std::int64_t day) { firstWeekday = static_cast<int>(day); });
  fields.read("timeZone", "expected an object", [&](const JSONValue& value) { return zone = readZone(value), true; });
  fields.text("count", "expected days or fasts",
              [&](std::string_view text) { return takeCount(text, read.report.streaks); });
  fields.flag("ignoreGoal", read.report.streaks.ignoreFastGoal);
  fields.whole("maxBreakHours", "expected whole hours from 0 to 87660000", 0, 87'660'000,
               [&](std::int64_t hours) { read.report.streaks.maxBreakHours = hours; });
  fields.text("weightUnit", "expected kg, lb or st", [&](std::string_view text) {
    const auto unit = weightUnitNamed(text);
    if (unit) read.report.weightUnit = *unit;
    return unit.has_value();
  });
  if (std::string wrong = fields.sentence(); !wrong.empty()) return tl::unexpected{std::move(wrong)};
  if (!zone) return tl::unexpected{std::move(zone.error())};
  if (!now) return tl::unexpected{std::string{"now: expected a date and time with its offset"}};

  read.report.now = *now;
  read.calendar = adapters::ZonedCalendar::gregorian(*zone, firstWeekday);
  read.report.calendar = read.calendar;
  return read;
}

}  // namespace mivo::web

// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <source_location>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "mivo/platform/Dependencies.h"

namespace mivo::tests {

// Clients that answer the same on every machine: English, no locale, no clock.

struct FixedClock : DateGenerator {
  explicit FixedClock(Date instant) : date{instant} {}
  Date now() const override { return date; }
  Date date;
};

/// 0-1, 0-2, 0-3, ...
struct CountingUUIDs : UUIDGenerator {
  UUID next() const override { return {0, ++last}; }
  void fill(std::span<UUID> ids) const override {
    for (UUID& id : ids) id = next();
  }
  mutable std::uint64_t last = 0;
};

/// Keeps what was reported, for a test to look at.
struct RecordedIssues : IssueReporter {
  void report(std::string_view message, const std::source_location&) const override {
    const std::scoped_lock lock{mutex};
    messages.emplace_back(message);
  }
  /// What was reported since the last call.
  std::vector<std::string> taken() const {
    const std::scoped_lock lock{mutex};
    return std::exchange(messages, {});
  }
  mutable std::vector<std::string> messages;
  mutable std::mutex mutex;
};

/// The keys themselves, filled with nothing; counts how often it is asked.
struct EnglishTexts : TextLookup {
  std::string text(std::string_view key, std::string_view = {}) const override {
    ++asked;
    return std::string{key};
  }
  std::string plural(std::string_view one, std::string_view many, std::int64_t count) const override {
    return std::string{count == 1 ? one : many};
  }
  mutable int asked = 0;
};

/// "12h 30m", "45m".
struct EnglishHoursAndMinutes : DurationFormatter {
  std::optional<std::string> string(double seconds) const override {
    if (!std::isfinite(seconds)) return std::nullopt;
    if (seconds < 0) return '-' + *string(-seconds);
    const auto minutes = static_cast<std::int64_t>(seconds / 60);
    const std::string rest = std::to_string(minutes % 60) + "m";
    return minutes < 60 ? rest : std::to_string(minutes / 60) + "h " + rest;
  }
};

/// "104h".
struct EnglishHours : DurationFormatter {
  std::optional<std::string> string(double seconds) const override {
    if (!std::isfinite(seconds)) return std::nullopt;
    return std::to_string(static_cast<std::int64_t>(seconds / secondsPerHour)) + "h";
  }
};

/// "1239", "72.4".
struct PlainNumbers : NumberFormatter {
  std::string string(std::int64_t number) const override { return std::to_string(number); }
  std::string string(double number, int fractionDigits) const override {
    std::array<char, 64> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.*f", fractionDigits, number);
    return {text.data(), static_cast<std::size_t>(length)};
  }
};

/// "72.4 kg", "-2.6 kg": kilograms in any unit.
struct PlainMasses : MassFormatter {
  std::string string(double weightInKg, WeightUnit) const override {
    return PlainNumbers{}.string(weightInKg, 1) + " kg";
  }
};

/// "yMMMd(1782907200)": the skeleton and the Unix time.
struct SkeletonDates : DateFormatter {
  std::optional<std::string> string(Date date, std::string_view skeleton) const override {
    return std::string{skeleton} + '(' + PlainNumbers{}.string(secondsSince1970(date), 0) + ')';
  }
};

struct MemoryDefaults : UserDefaults {
  std::optional<Value> value(std::string_view key) const override {
    const std::scoped_lock lock{mutex};
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : std::optional{found->second};
  }
  void setValue(std::string_view key, std::optional<Value> written) const override {
    const std::scoped_lock lock{mutex};
    if (written)
      values.insert_or_assign(std::string{key}, *std::move(written));
    else if (const auto found = values.find(key); found != values.end())
      values.erase(found);
  }
  mutable std::map<std::string, Value, std::less<>> values;
  mutable std::mutex mutex;
};

/// All of the above at noon of 1 July 2026 UTC; a test replaces what it is about.
inline Dependencies fixedDependencies() {
  Dependencies clients;
  clients.date = std::make_shared<FixedClock>(dateSince1970(1782907200));
  clients.uuid = std::make_shared<CountingUUIDs>();
  clients.hourMinDurationUnitFormatter = std::make_shared<EnglishHoursAndMinutes>();
  clients.hourDurationUnitFormatter = std::make_shared<EnglishHours>();
  clients.numberFormatter = std::make_shared<PlainNumbers>();
  clients.massFormatter = std::make_shared<PlainMasses>();
  clients.dateFormatter = std::make_shared<SkeletonDates>();
  clients.texts = std::make_shared<EnglishTexts>();
  clients.appGroupUserDefaults = std::make_shared<MemoryDefaults>();
  clients.userDefaults = std::make_shared<MemoryDefaults>();
  clients.issueReporter = std::make_shared<RecordedIssues>();
  return clients;
}

}  // namespace mivo::tests

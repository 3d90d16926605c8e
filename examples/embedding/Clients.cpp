// SPDX-License-Identifier: MIT
#include "Clients.h"

#include <array>
#include <chrono>
#include <map>
#include <string>

#include "UtcCalendar.h"

namespace {

struct Clock final : mivo::DateGenerator {
  explicit Clock(mivo::Date at) : date{at} {}
  mivo::Date now() const override { return date; }
  mivo::Date date;
};

struct Ids final : mivo::UUIDGenerator {
  mivo::UUID next() const override { return {0, ++last}; }
  void fill(std::span<mivo::UUID> ids) const override {
    for (mivo::UUID& id : ids) id = next();
  }
  mutable std::uint64_t last = 0;
};

struct Settings final : mivo::UserDefaults {
  std::optional<Value> value(std::string_view key) const override {
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : std::optional{found->second};
  }
  void setValue(std::string_view key, std::optional<Value> value) const override {
    if (value) values.insert_or_assign(std::string{key}, *value);
  }
  mutable std::map<std::string, Value, std::less<>> values;
};

/// "Sun" for the bars of a week, "1.3." for all others.
struct BarLabels final : mivo::DateFormatter {
  std::optional<std::string> string(mivo::Date date, std::string_view skeleton) const override {
    const auto day = std::chrono::floor<std::chrono::days>(date);
    const std::chrono::year_month_day ymd{day};
    static constexpr std::array weekdays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    if (skeleton == "EEE") return weekdays[std::chrono::weekday{day}.c_encoding()];
    return std::to_string(unsigned{ymd.day()}) + '.' + std::to_string(unsigned{ymd.month()}) + '.';
  }
};

struct Health final : mivo::HealthKitClient {
  void shouldRequestAuthorization(std::function<void(bool)> completion) const override { completion(true); }
  void requestAuthorization(std::function<void()> completion) const override { completion(); }
};

struct Tips final : mivo::TipCatalogue {
  std::optional<mivo::Tip> tip(std::string_view id) const override { return mivo::Tip{std::string{id}, "", ""}; }
  bool canDisplay(std::string_view) const override { return true; }
  std::optional<std::string> highestPriorityAvailableTip() const override { return "tapABar"; }
};

}  // namespace

void Loop::drain() const {
  while (!works.empty()) {
    const auto work = std::move(works.front());
    works.pop_front();
    work();
  }
}

std::shared_ptr<const mivo::Dependencies> plainClients(mivo::Date now) {
  auto clients = std::make_shared<mivo::Dependencies>();
  clients->date = std::make_shared<Clock>(now);
  clients->uuid = std::make_shared<Ids>();
  clients->calendar = clients->currentCalendar = std::make_shared<UtcCalendar>();
  clients->userDefaults = clients->appGroupUserDefaults = std::make_shared<Settings>();
  clients->dateFormatter = std::make_shared<BarLabels>();
  clients->healthKitClient = std::make_shared<Health>();
  clients->tips = std::make_shared<Tips>();
  return clients;
}

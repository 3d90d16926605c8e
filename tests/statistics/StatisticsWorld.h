// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/icu/Calendars.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "mivo/statistics/StatisticsFeature.h"
#include "tests/support/TestStore.h"

namespace mivo::tests {

struct HealthDouble : HealthKitClient {
  void shouldRequestAuthorization(std::function<void(bool)> completion) const override { completion(shouldRequest); }
  void requestAuthorization(std::function<void()> completion) const override {
    if (atRequest) atRequest();
    completion();
  }
  bool shouldRequest = false;
  std::function<void()> atRequest;
};

struct TipsDouble : TipCatalogue {
  std::optional<Tip> tip(std::string_view id) const override { return Tip{std::string{id}, "Title", "Message"}; }
  bool canDisplay(std::string_view id) const override { return id == displayable; }
  std::optional<std::string> highestPriorityAvailableTip() const override { return available; }
  std::optional<std::string> available;
  std::string displayable = "streaks";
};

struct DonationsDouble : DonationClient {
  void products(StopToken, Completion<DonationProducts> completion) const override {
    if (!failure.empty()) return completion(std::make_exception_ptr(URLError{failure}));
    completion(answer);
  }
  DonationProducts answer{{{"coffee", "A coffee", "3 €", "https://example.org/coffee"}}, {}};
  std::string failure;
};

struct LinksDouble : LinkOpener {
  void open(std::string_view url) const override { opened.emplace_back(url); }
  mutable std::vector<std::string> opened;
};

/// A world with everything that the statistics screen asks of a host; days are those of UTC.
class StatisticsTest : public testing::Test {
 protected:
  StatisticsTest() {
    const auto zone = adapters::loadTimeZone("UTC");
    world.dependencies.calendar = *adapters::makeCalendar("gregorian", *zone, 2);
    world.dependencies.currentCalendar = world.dependencies.calendar;
    world.dependencies.healthKitClient = health;
    world.dependencies.tips = tips;
    world.dependencies.donations = donations;
    world.dependencies.links = links;
    scope.emplace(std::make_shared<const Dependencies>(world.dependencies));
  }

  static StatisticsFeature::State emptyState() {
    return StatisticsFeature::State::make(StatsContainer::empty(), {}, TimeRange::week);
  }

  std::unique_ptr<TestStore<StatisticsFeature>> made(StatisticsFeature::State state) const {
    return std::make_unique<TestStore<StatisticsFeature>>(world, std::move(state), StatisticsFeature{});
  }

  /// A fast of 16 hours that ends at noon of that day of June 2026.
  static FastingDataEntry day(int number) {
    const Date noon = dateSince1970(1780228800 + number * secondsPerDay + 12 * secondsPerHour);
    return finishedFast(UUID{1, static_cast<std::uint64_t>(number)}, noon - Duration{57600}, noon, 57600);
  }

  static FastingDataEntry running(int number) {
    return ongoingFast(UUID{2, static_cast<std::uint64_t>(number)}, day(number).start, 57600);
  }

  TestWorld world;
  std::shared_ptr<HealthDouble> health = std::make_shared<HealthDouble>();
  std::shared_ptr<TipsDouble> tips = std::make_shared<TipsDouble>();
  std::shared_ptr<DonationsDouble> donations = std::make_shared<DonationsDouble>();
  std::shared_ptr<LinksDouble> links = std::make_shared<LinksDouble>();
  std::optional<DependencyScope> scope;
  std::vector<std::string> log;
};

}  // namespace mivo::tests

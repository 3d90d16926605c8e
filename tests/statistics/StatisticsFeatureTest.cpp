// SPDX-License-Identifier: MIT
#include "mivo/statistics/StatisticsFeature.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/statistics/StatisticsWorld.h"

namespace mivo {
namespace {

using State = StatisticsFeature::State;
using Action = StatisticsFeature::Action;
using Destination = StatisticsFeature::Destination;
using ChartAction = ScrollChartFeature::Action;
using testing::ElementsAre;
using tests::StatisticsTest;

Action presented(Destination::Action action) {
  using Sent = PresentationAction<Destination::Action>;
  return Action::destination{Sent{Sent::presented{std::move(action)}}};
}

const Action dismissal = Action::destination{PresentationAction<Destination::Action>::dismiss{}};

TEST_F(StatisticsTest, beginsWithItsArgumentsAndDefaults) {
  StatsContainer stats = StatsContainer::empty();
  stats.totalFasts = 7;
  stats.maxStreak = 3;
  stats.currentWeightInKg = 80.0;
  const State state = State::make(stats, {}, TimeRange::month);
  EXPECT_EQ(state.stats, stats);
  EXPECT_EQ(state.timeRange, TimeRange::month);
  EXPECT_FALSE(state.destination);
  EXPECT_TRUE(state.dashboardSettings.showDonations);
  EXPECT_FALSE(state.dashboardSettings.showKetosisHours);
  EXPECT_EQ(state.addWeightLogState.weightInKg, 65.0);
  EXPECT_EQ(state.addWeightLogState.logDate, world.clock->now());
  EXPECT_EQ(state.badgeCardState.totalFasts, 7);
  EXPECT_EQ(state.badgeCardState.maxStreak, 3);
  EXPECT_EQ(state.badgeCardState.allStreaks.size(), 11u);
  EXPECT_EQ(state.goalWeightCardState.currentWeightInKg, 80.0);
  EXPECT_EQ(state.currentTipID, std::nullopt);
}

TEST_F(StatisticsTest, onAppearReloadsSettingsAndStreaksAndAsksTwice) {
  health->shouldRequest = true;
  tips->available = "streaks";
  world.dependencies.userDefaults->setValue("showRoadmap", false);
  world.dependencies.appGroupUserDefaults->setStreakSettings(
      {.countingEntity = StreakSettings::CountingEntity::fasts, .ignoreFastGoal = true, .maxBreakHours = 30});
  auto store = made(State::make(StatsContainer::empty(), {day(1), day(2), day(3), running(4)}, TimeRange::week));
  store->send(Action::onAppear{}, [](State& state) {
    state.dashboardSettings.showRoadmap = false;
    state.streakSettings = StreakSettings{StreakSettings::CountingEntity::fasts, true, 30};
    state.stats.currentStreak = 3;
    state.stats.maxStreak = 3;
    state.badgeCardState.maxStreak = 3;
  });
  EXPECT_EQ(world.tasks->count(), 2u);
  store->receive(Action::shouldRequestHealthKitAuthorizationResponse{true}, [](State& state) {
    state.shouldRequestHealthKitAuthorization = true;
    state.showHealthKitCard = true;
  });
  store->receive(Action::didReceiveTipID{"streaks"}, [](State& state) { state.currentTipID = "streaks"; });
}

TEST_F(StatisticsTest, onAppearWithOnlyARunningFastHasNoStreak) {
  tips->available = std::nullopt;
  StatsContainer stats = StatsContainer::empty();
  stats.currentStreak = 5;
  stats.maxStreak = 9;
  auto store = made(State::make(stats, {running(1)}, TimeRange::week));
  store->send(Action::onAppear{}, [](State& state) {
    state.stats.currentStreak = 0;
    state.stats.maxStreak = 0;
    state.badgeCardState.maxStreak = 0;
  });
  store->receive(Action::shouldRequestHealthKitAuthorizationResponse{false});
}

TEST_F(StatisticsTest, aTipThatMayStillBeShownStays) {
  tips->available = "newer";
  State state = emptyState();
  state.currentTipID = "streaks";
  auto store = made(state);
  store->send(Action::onAppear{});
  store->receive(Action::shouldRequestHealthKitAuthorizationResponse{false});
  store->finish();
  tips->displayable = "newer";
  store->send(Action::onAppear{});
  store->receive(Action::shouldRequestHealthKitAuthorizationResponse{false});
  store->receive(Action::didReceiveTipID{"newer"}, [](State& changed) { changed.currentTipID = "newer"; });
}

TEST_F(StatisticsTest, olderPlatformsShowNoTips) {
  world.dependencies.platformVersion = 16;
  tips->available = "streaks";
  const DependencyScope older = world.enter();
  auto store = made(emptyState());
  store->send(Action::onAppear{});
  store->receive(Action::shouldRequestHealthKitAuthorizationResponse{false});
}

TEST_F(StatisticsTest, aLateHealthAnswerIsKeptWhileWeightLoggingIsHidden) {
  world.dependencies.userDefaults->setValue("showWeightLogging", false);
  health->shouldRequest = true;
  auto store = made(emptyState());
  store->send(Action::onAppear{}, [](State& state) { state.dashboardSettings.showWeightLogging = false; });
  store->receive(Action::shouldRequestHealthKitAuthorizationResponse{true},
                 [](State& state) { state.shouldRequestHealthKitAuthorization = true; });
  world.dependencies.userDefaults->setValue("showWeightLogging", true);
  store->send(Action::onAppear{}, [](State& state) {
    state.dashboardSettings.showWeightLogging = true;
    state.showHealthKitCard = true;
  });
  store->receive(Action::shouldRequestHealthKitAuthorizationResponse{true});
}

TEST_F(StatisticsTest, askingForHealthDataWritesTheConsentBeforeItAsks) {
  State state = emptyState();
  state.showHealthKitCard = true;
  auto store = made(state);
  health->atRequest = [this] {
    log.push_back(world.dependencies.userDefaults->healthKitSync() ? "written" : "not yet");
  };
  store->send(Action::requestHealthKitAccess{}, [](State& changed) { changed.showHealthKitCard = false; });
  store->finish();
  EXPECT_THAT(log, ElementsAre("written"));
}

TEST_F(StatisticsTest, eitherChartScrollsBoth) {
  auto store = made(emptyState());
  const auto to = [](double middle) {
    return [middle](State& state) {
      state.stats.fastingChartState.scrollViewMidX = middle;
      state.stats.eatingChartState.scrollViewMidX = middle;
    };
  };
  store->send(Action::eatingChartAction{ChartAction::didUpdateMidX{120.0}}, to(120.0));
  store->send(Action::fastingChartAction{ChartAction::didUpdateMidX{-4.5}}, to(-4.5));
  store->send(Action::eatingChartAction{ChartAction::didTapBar{UUID{0, 9}}},
              [](State& state) { state.stats.eatingChartState.selectedUUID = UUID{0, 9}; });
}

TEST_F(StatisticsTest, aBindingChangesTheTimeRangeAlone) {
  auto store = made(emptyState());
  store->send(Action::binding{Write<&State::timeRange>{TimeRange::year}},
              [](State& state) { state.timeRange = TimeRange::year; });
}

TEST_F(StatisticsTest, overlappingFastsAreTheHostsToFix) {
  auto store = made(emptyState());
  store->send(Action::didTapFixOverlappingFasts{});
}

TEST_F(StatisticsTest, opensTheBadgesWithThePresentNumbers) {
  StatsContainer stats = StatsContainer::empty();
  stats.totalFasts = 12;
  stats.maxStreak = 6;
  auto store = made(State::make(stats, {}, TimeRange::week));
  store->send(Action::didTapOpenBadges{}, [](State& state) {
    state.destination = Destination::State::badges{
        {.totalFasts = 12, .maxStreak = 6, .allMilestones = badgeThresholdList(), .allStreaks = badgeThresholdList()}};
  });
  store->send(presented(Destination::Action::badges{BadgeSummaryFeature::Action::didTapStreaks{}}), [](State& state) {
    std::get<Destination::State::badges>(*state.destination).state.destination =
        BadgeSummaryFeature::Destination::State::streaks{};
  });
  store->send(dismissal, [](State& state) { state.destination = std::nullopt; });
}

TEST_F(StatisticsTest, anActionForAnotherScreenIsReportedAndIgnored) {
  const auto issues = std::make_shared<tests::RecordedIssues>();
  world.dependencies.issueReporter = issues;
  const DependencyScope recorded = world.enter();
  auto store = made(emptyState());
  store->send(Action::didTapOpenRoadmap{}, [](State& state) { state.destination = Destination::State::roadmap{}; });
  store->send(presented(Destination::Action::badges{BadgeSummaryFeature::Action::didTapStreaks{}}));
  EXPECT_THAT(issues->taken(), ElementsAre("badges: an action arrived while another screen was presented"));
  store->send(dismissal, [](State& state) { state.destination = std::nullopt; });
  store->send(presented(Destination::Action::badges{BadgeSummaryFeature::Action::didTapStreaks{}}));
  EXPECT_THAT(issues->taken(), ElementsAre("destination: an action arrived while nothing was presented"));
}

TEST_F(StatisticsTest, whatTheDonationsLoadedAfterTheyWereClosedIsDropped) {
  Store store{emptyState(), StatisticsFeature{}, world.queue, world.tasks};
  store.send(Action::didTapOpenDonations{});
  store.send(presented(Destination::Action::donations{DonationsFeature::Action::onAppear{}}));
  world.tasks->runAll();
  ASSERT_EQ(world.queue->count(), 1u) << "the answer waits in the main queue";
  store.send(dismissal);
  store.send(Action::didTapOpenDonations{});
  world.queue->runAll();
  EXPECT_EQ(std::get<Destination::State::donations>(*store.state().destination).state, DonationsFeature::State{});
}

TEST_F(StatisticsTest, foldingInAFreshContainerReachesTheCards) {
  State state = emptyState();
  const Stamp maxStreak = state.badgeCardState.maxStreak.stamp();
  StatsContainer fresh = StatsContainer::empty();
  fresh.totalFasts = 4;
  fresh.currentWeightInKg = 79.5;
  state.updateFastingChart(fresh);
  EXPECT_EQ(state.badgeCardState.totalFasts, 4);
  EXPECT_EQ(state.badgeCardState.maxStreak.stamp(), maxStreak) << "an unchanged number is not drawn again";
  EXPECT_EQ(state.stats.currentWeightInKg, std::nullopt);
  state.updateWeightChart(fresh);
  EXPECT_EQ(state.goalWeightCardState.currentWeightInKg, 79.5);
}

}  // namespace
}  // namespace mivo

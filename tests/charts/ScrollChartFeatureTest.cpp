// SPDX-License-Identifier: MIT
#include "mivo/charts/ScrollChartFeature.h"

#include <gtest/gtest.h>

#include <cmath>

#include "mivo/charts/BarGeometry.h"
#include "mivo/store/Print.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using State = ScrollChartFeature::State;
using Action = ScrollChartFeature::Action;

constexpr Date firstDay = dateSince1970(1782864000);
constexpr Date day(int number) { return firstDay + Duration{number * secondsPerDay}; }
constexpr UUID barID(int number) { return {7, static_cast<std::uint64_t>(number)}; }
ChartDataEntry bar(int number, double value) { return {{day(number), day(number + 1)}, value, "Wed", barID(number)}; }

/// Three days of at most 20 hours, in a chart of 280 x 250 points, of which the second and third are drawn.
State threeDays() {
  State state{.chartTimeUnit = ChartTimeUnit::day,
              .data = IdentifiedArray{bar(0, 0.25), bar(1, 0.5), bar(2, 1)},
              .maxTime = 20 * secondsPerHour,
              .now = day(2)};
  state.chartSize = Size{280, 250};
  state.visibleDays = ScrollChartFeature::VisibleDays{{day(1), 120}, {day(2), 160}};
  return state;
}

class ScrollChart : public testing::Test {
 protected:
  State state = threeDays();
  const ScrollChartFeature feature{};
  const DependencyScope scope{std::make_shared<const Dependencies>(tests::fixedDependencies())};

  void send(const Action& action) { EXPECT_TRUE(feature.reduce(state, action).operations().empty()); }
};

TEST_F(ScrollChart, beginsWithoutSelectionAndGeometry) {
  const State fresh{
      .chartTimeUnit = ChartTimeUnit::week, .data = IdentifiedArray<ChartDataEntry>{}, .maxTime = 0, .now = day(2)};
  EXPECT_EQ(fresh.chartSize, Size{});
  EXPECT_EQ(fresh.scrollViewMidX.value(), std::nullopt);
  EXPECT_EQ(fresh.visibleDays, ScrollChartFeature::VisibleDays{});
  EXPECT_EQ(fresh.selectedUUID.value(), std::nullopt);
  EXPECT_EQ(fresh.popupViewState(), std::nullopt);
}

TEST_F(ScrollChart, selectsTheTappedBarUntilItIsTappedAgain) {
  State expected = state;
  for (const auto& [tapped, selected] : {std::pair{1, std::optional{barID(1)}},
                                         {2, std::optional{barID(2)}},
                                         {2, std::optional<UUID>{}},
                                         {9, std::optional{barID(9)}}}) {
    send(Action::didTapBar{barID(tapped)});
    expected.selectedUUID = selected;
    EXPECT_EQ(state, expected) << "after a tap on bar " << tapped;
  }
  EXPECT_EQ(state.popupViewState(), std::nullopt) << "no bar has this id";
}

TEST_F(ScrollChart, takesOverWhatTheViewsMeasure) {
  State expected = state;
  send(Action::didUpdateSize{{390, 200}});
  expected.chartSize = Size{390, 200};
  EXPECT_EQ(state, expected);

  send(Action::didUpdateMidX{195.5});
  expected.scrollViewMidX = 195.5;
  EXPECT_EQ(state, expected);

  send(Action::didUpdateVisibleDays{{{day(0), 40}}});
  expected.visibleDays = ScrollChartFeature::VisibleDays{{day(0), 40}};
  EXPECT_EQ(state, expected) << "replaced, not merged";

  send(Action::didUpdateVisibleDays{{}});
  expected.visibleDays = ScrollChartFeature::VisibleDays{};
  EXPECT_EQ(state, expected);
}

TEST_F(ScrollChart, stampsOnlyTheFieldThatAnActionWrites) {
  const State before = state;
  send(Action::didUpdateMidX{195.5});
  EXPECT_NE(state.scrollViewMidX.stamp(), before.scrollViewMidX.stamp());
  EXPECT_EQ(state.data.stamp(), before.data.stamp());
  EXPECT_EQ(state.chartSize.stamp(), before.chartSize.stamp());
  EXPECT_EQ(state.visibleDays.stamp(), before.visibleDays.stamp());
  EXPECT_EQ(state.selectedUUID.stamp(), before.selectedUUID.stamp());
}

TEST_F(ScrollChart, centresThePopupOnItsBar) {
  send(Action::didTapBar{barID(1)});
  EXPECT_EQ(state.popupViewState(),
            (State::PopupViewState{
                .popupXOffset = 120 - 78 + 2, .popupYOffset = -154, .popupLabel = "10h 0m", .popupWidth = 78}));
}

TEST_F(ScrollChart, startsThePopupOfTheFirstBarAtTheEdgeThoughItIsNotDrawn) {
  send(Action::didTapBar{barID(0)});
  EXPECT_EQ(state.popupViewState(),
            (State::PopupViewState{.popupXOffset = 0, .popupYOffset = -104, .popupLabel = "5h 0m", .popupWidth = 78}));
}

TEST_F(ScrollChart, hidesThePopupOfABarThatIsNotDrawn) {
  send(Action::didTapBar{barID(2)});
  EXPECT_NE(state.popupViewState(), std::nullopt);
  send(Action::didUpdateVisibleDays{{{day(1), 120}}});
  EXPECT_EQ(state.popupViewState(), std::nullopt);
}

TEST_F(ScrollChart, saysHoursOnlyFromAHundredHoursOn) {
  state.maxTime = 100 * secondsPerHour;
  send(Action::didTapBar{barID(2)});
  EXPECT_EQ(state.popupViewState()->popupLabel, "100h");
  EXPECT_EQ(state.popupViewState()->popupYOffset, -14 - 200 - 40 + 60) << "a full bar holds its popup";
}

TEST_F(ScrollChart, comparesEachOfItsFields) {
  const auto differs = [this](auto change) {
    State other = state;
    change(other);
    return other != state;
  };
  EXPECT_FALSE(differs([](State&) {}));
  EXPECT_FALSE(differs([](State& other) { other.maxTime = other.maxTime.value(); }));
  EXPECT_TRUE(differs([](State& other) { other.chartTimeUnit = ChartTimeUnit::week; }));
  EXPECT_TRUE(differs([](State& other) { other.data = IdentifiedArray{bar(0, 0.25), bar(1, 0.5), bar(2, 0.75)}; }));
  EXPECT_TRUE(differs([](State& other) { other.now = day(3); }));
  EXPECT_TRUE(differs([](State& other) { other.scrollViewMidX = 1; }));
}

TEST(ScrollChartAction, saysWhatItIs) {
  EXPECT_EQ(printed(Action{Action::didUpdateMidX{12.5}}), "didUpdateMidX(12.5)");
  EXPECT_EQ(Action{Action::didUpdateMidX{12.5}}, Action{Action::didUpdateMidX{12.5}});
  EXPECT_NE(Action{Action::didUpdateMidX{12.5}}, Action{Action::didTapBar{barID(1)}});
}

}  // namespace
}  // namespace mivo

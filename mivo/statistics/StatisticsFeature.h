// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "mivo/achievements/BadgeCardState.h"
#include "mivo/achievements/BadgeSummaryFeature.h"
#include "mivo/calculations/StatsContainer.h"
#include "mivo/charts/ScrollChartFeature.h"
#include "mivo/model/Fasts.h"
#include "mivo/model/Record.h"
#include "mivo/model/StreakSettings.h"
#include "mivo/model/TimeRange.h"
#include "mivo/platform/Dependencies.h"
#include "mivo/statistics/AddWeightLogFeature.h"
#include "mivo/statistics/DashboardSettingsFeature.h"
#include "mivo/statistics/DonationsFeature.h"
#include "mivo/statistics/GoalWeightCardFeature.h"
#include "mivo/store/Action.h"
#include "mivo/store/Effect.h"
#include "mivo/store/List.h"
#include "mivo/store/Observed.h"
#include "mivo/store/Presentation.h"
#include "mivo/store/Reducers.h"

namespace mivo {

/// The statistics screen, the feature that a host embeds.
///
/// The host owns fasts and weights. Where they, the streak settings or the time range change, its parent reducer
/// recomputes a container away from the screen and folds it in:
///
///     StatsContainer fresh = state.stats.copy();
///     fresh.update(fasts, ongoingFast, state.streakSettings, state.timeRange);
///     state.updateFastingChart(fresh);
///     state.updateWeightChart(StatsContainer::update(samples));
///
/// `didTapFixOverlappingFasts`, the `timeRange` binding and a tap on Save in the add-weight card pass through for the
/// host to act on. Made where the dependencies are in force: user defaults, health data, tips, clock, ids, calendars.
struct StatisticsFeature {
  struct Destination {
    /// The roadmap screen, which does its work in a feature of its own.
    struct RoadmapFeature : EmptyReducer {
      struct State {
        bool operator==(const State&) const = default;
      };
      struct Action {
        Action() = delete;
        bool operator==(const Action&) const = default;
      };
    };

    struct StateCases {
      struct badges {
        BadgeSummaryFeature::State state;
        bool operator==(const badges&) const = default;
      };
      struct roadmap {
        RoadmapFeature::State state;
        bool operator==(const roadmap&) const = default;
      };
      struct donations {
        DonationsFeature::State state;
        bool operator==(const donations&) const = default;
      };
    };
    struct State : StateCases, std::variant<StateCases::badges, StateCases::roadmap, StateCases::donations> {
      using variant::variant;
      // Here and below the special members are defined in one place: made anew in every file that needs them, they are
      // a quarter of its compile time.
      State(const State&);
      State(State&&) noexcept;
      State& operator=(const State&);
      State& operator=(State&&) noexcept;
      ~State();
    };

    struct Cases {
      struct badges {
        BadgeSummaryFeature::Action action;
        bool operator==(const badges&) const = default;
      };
      struct roadmap {
        RoadmapFeature::Action action;
        bool operator==(const roadmap&) const = default;
      };
      struct donations {
        DonationsFeature::Action action;
        bool operator==(const donations&) const = default;
      };
    };
    struct Action : Cases, std::variant<Cases::badges, Cases::roadmap, Cases::donations> {
      using variant::variant;
      Action(const Action&);
      Action(Action&&) noexcept;
      Action& operator=(const Action&);
      Action& operator=(Action&&) noexcept;
      ~Action();
    };

    BadgeSummaryFeature badgeSummary;
    DonationsFeature donations;

    Effect<Action> reduce(State& state, const Action& action) const;
  };

  struct State {
    Presentation<Destination::State> destination = std::nullopt;
    Observed<List<FastingDataEntry>> fasts;  ///< all of them, the running one too, in the host's order
    DashboardSettingsFeature::State dashboardSettings = {};
    Observed<StreakSettings> streakSettings = StreakSettings{};
    Observed<TimeRange> timeRange;
    Observed<bool> showHealthKitCard = false;
    Observed<bool> shouldRequestHealthKitAuthorization = false;  ///< the last answer
    AddWeightLogFeature::State addWeightLogState = {};
    StatsContainer stats;
    GoalWeightCardFeature::State goalWeightCardState = {};
    BadgeCardState badgeCardState = {};
    Observed<std::optional<std::string>> currentTipID = std::nullopt;

    /// The cards that show numbers of `stats` show the present ones.
    static State make(StatsContainer stats, List<FastingDataEntry> fasts, TimeRange timeRange,
                      Presentation<Destination::State> destination = std::nullopt);

    /// Folds one half of a fresh container into `stats`, and into the cards that show its numbers.
    void updateFastingChart(const StatsContainer& fresh);
    void updateWeightChart(const StatsContainer& fresh);

    /// Brings the badge card and the goal-weight card up to date after `stats` was written in any other way; `onAppear`
    /// does it too.
    void refreshCards();

    bool operator==(const State&) const = default;
  };

  struct Cases {
    struct shouldRequestHealthKitAuthorizationResponse {
      bool shouldRequest;
      bool operator==(const shouldRequestHealthKitAuthorizationResponse&) const = default;
    };
    struct didReceiveTipID {
      std::string id;
      bool operator==(const didReceiveTipID&) const = default;
    };
    struct binding {
      Binding<&State::timeRange> action;
      bool operator==(const binding&) const = default;
    };
    struct fastingChartAction {
      ScrollChartFeature::Action action;
      bool operator==(const fastingChartAction&) const = default;
    };
    struct eatingChartAction {
      ScrollChartFeature::Action action;
      bool operator==(const eatingChartAction&) const = default;
    };
    struct addWeightLogAction {
      AddWeightLogFeature::Action action;
      bool operator==(const addWeightLogAction&) const = default;
    };
    struct goalWeightCardAction {
      GoalWeightCardFeature::Action action;
      bool operator==(const goalWeightCardAction&) const = default;
    };
    struct destination {
      PresentationAction<Destination::Action> action;
      bool operator==(const destination&) const = default;
    };
    struct onAppear {
      bool operator==(const onAppear&) const = default;
    };
    struct didTapOpenBadges {
      bool operator==(const didTapOpenBadges&) const = default;
    };
    struct didTapOpenRoadmap {
      bool operator==(const didTapOpenRoadmap&) const = default;
    };
    struct didTapOpenDonations {
      bool operator==(const didTapOpenDonations&) const = default;
    };
    struct didTapFixOverlappingFasts {
      bool operator==(const didTapFixOverlappingFasts&) const = default;
    };
    struct requestHealthKitAccess {
      bool operator==(const requestHealthKitAccess&) const = default;
    };
  };
  struct Action
      : Cases,
        std::variant<Cases::shouldRequestHealthKitAuthorizationResponse, Cases::didReceiveTipID, Cases::binding,
                     Cases::fastingChartAction, Cases::eatingChartAction, Cases::addWeightLogAction,
                     Cases::goalWeightCardAction, Cases::destination, Cases::onAppear, Cases::didTapOpenBadges,
                     Cases::didTapOpenRoadmap, Cases::didTapOpenDonations, Cases::didTapFixOverlappingFasts,
                     Cases::requestHealthKitAccess> {
    using variant::variant;
    Action(const Action&);
    Action(Action&&) noexcept;
    Action& operator=(const Action&);
    Action& operator=(Action&&) noexcept;
    ~Action();
  };

  Client<UserDefaults> appGroupUserDefaults = dependency(&Dependencies::appGroupUserDefaults);
  Client<UserDefaults> userDefaults = dependency(&Dependencies::userDefaults);
  Client<HealthKitClient> healthKitClient = dependency(&Dependencies::healthKitClient);
  Client<TipCatalogue> tips = dependency(&Dependencies::tips);
  int platformVersion = currentDependencies().platformVersion;

  ScrollChartFeature scrollChart;
  AddWeightLogFeature addWeightLog;
  GoalWeightCardFeature goalWeightCard;
  Destination destinations;

  Effect<Action> reduce(State& state, const Action& action) const;

 private:
  Effect<Action> core(State& state, const Action& action) const;
  Effect<Action> onAppear(State& state) const;
  Effect<Action> requestHealthKitAccess(State& state) const;
};

template <RecordOf<StatisticsFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [destination, fasts, dashboardSettings, streakSettings, timeRange, showHealthKitCard,
         shouldRequestHealthKitAuthorization, addWeightLogState, stats, goalWeightCardState, badgeCardState,
         currentTipID] = record;
  visit("destination", destination);
  visit("fasts", fasts);
  visit("dashboardSettings", dashboardSettings);
  visit("streakSettings", streakSettings);
  visit("timeRange", timeRange);
  visit("showHealthKitCard", showHealthKitCard);
  visit("shouldRequestHealthKitAuthorization", shouldRequestHealthKitAuthorization);
  visit("addWeightLogState", addWeightLogState);
  visit("stats", stats);
  visit("goalWeightCardState", goalWeightCardState);
  visit("badgeCardState", badgeCardState);
  visit("currentTipID", currentTipID);
}

}  // namespace mivo

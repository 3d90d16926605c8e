// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <variant>

#include "mivo/model/Record.h"
#include "mivo/store/Action.h"
#include "mivo/store/Effect.h"
#include "mivo/store/List.h"
#include "mivo/store/Observed.h"
#include "mivo/store/Presentation.h"
#include "mivo/store/Reducers.h"

namespace mivo {

/// The list of all milestone badges; it does nothing of its own.
struct MilestonesFeature : EmptyReducer {
  struct State {
    bool operator==(const State&) const = default;
  };
  struct Action {
    Action() = delete;
    bool operator==(const Action&) const = default;
  };
};

/// The list of all streak badges; it does nothing of its own.
struct StreaksFeature : EmptyReducer {
  struct State {
    bool operator==(const State&) const = default;
  };
  struct Action {
    Action() = delete;
    bool operator==(const Action&) const = default;
  };
};

/// The badge summary: both families of badges, and a screen for each that lists them all.
struct BadgeSummaryFeature {
  struct Destination {
    struct StateCases {
      struct milestones {
        MilestonesFeature::State state;
        bool operator==(const milestones&) const = default;
      };
      struct streaks {
        StreaksFeature::State state;
        bool operator==(const streaks&) const = default;
      };
    };
    struct State : StateCases, std::variant<StateCases::milestones, StateCases::streaks> {
      using variant::variant;
    };

    struct Cases {
      struct milestones {
        MilestonesFeature::Action action;
        bool operator==(const milestones&) const = default;
      };
      struct streaks {
        StreaksFeature::Action action;
        bool operator==(const streaks&) const = default;
      };
    };
    struct Action : Cases, std::variant<Cases::milestones, Cases::streaks> {
      using variant::variant;
    };

    Effect<Action> reduce(State& state, const Action& action) const;
  };

  struct State {
    Observed<std::int64_t> totalFasts;
    Observed<std::int64_t> maxStreak;
    Observed<List<std::int64_t>> allMilestones;
    Observed<List<std::int64_t>> allStreaks;
    Presentation<Destination::State> destination = std::nullopt;
    bool operator==(const State&) const = default;
  };

  struct Cases {
    struct destination {
      PresentationAction<Destination::Action> action;
      bool operator==(const destination&) const = default;
    };
    struct didTapMilestones {
      bool operator==(const didTapMilestones&) const = default;
    };
    struct didTapStreaks {
      bool operator==(const didTapStreaks&) const = default;
    };
  };
  struct Action : Cases, std::variant<Cases::destination, Cases::didTapMilestones, Cases::didTapStreaks> {
    using variant::variant;
  };

  Effect<Action> reduce(State& state, const Action& action) const;
};

template <RecordOf<BadgeSummaryFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [totalFasts, maxStreak, allMilestones, allStreaks, destination] = record;
  visit("totalFasts", totalFasts);
  visit("maxStreak", maxStreak);
  visit("allMilestones", allMilestones);
  visit("allStreaks", allStreaks);
  visit("destination", destination);
}

}  // namespace mivo

// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/statistics/StatisticsFeature.h"

/// A parent of the statistics feature: owns fasts and weights, and acts on what passes through the screen.
struct HostFeature {
  struct State {
    mivo::StatisticsFeature::State statistics;
    mivo::Observed<mivo::List<mivo::BodyWeightSample>> weights;
    bool operator==(const State&) const = default;
  };

  struct Cases {
    struct statistics {
      mivo::StatisticsFeature::Action action;
      bool operator==(const statistics&) const = default;
    };
    struct didRecordFast {
      mivo::FastingDataEntry fast;
      bool operator==(const didRecordFast&) const = default;
    };
  };
  struct Action : Cases, std::variant<Cases::statistics, Cases::didRecordFast> {
    using variant::variant;
  };

  mivo::StatisticsFeature statistics;

  mivo::Effect<Action> reduce(State& state, const Action& action) const;
};

template <mivo::RecordOf<HostFeature::State> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [statistics, weights] = record;
  visit("statistics", statistics);
  visit("weights", weights);
}

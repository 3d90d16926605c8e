// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <vector>

#include "host/app/Screens.h"
#include "mivo/charts/ScrollChartFeature.h"
#include "mivo/model/Record.h"
#include "mivo/store/Observed.h"
#include "mivo/store/Presentation.h"

namespace mivo::host {

/// The stamps of everything in a state that can change a page: all observed fields but which screen is open, and where
/// charts are scrolled to and what is selected in them, which change with every frame. Two equal lists mean that
/// nothing was written in between.
template <class State>
void collectStamps(const State& state, std::vector<Stamp>& stamps) {
  if constexpr (std::same_as<State, Observed<Screen>>) {
    return;
  } else if constexpr (isObserved<State>) {
    stamps.push_back(state.stamp());
  } else if constexpr (isPresentation<State>) {
    stamps.push_back(state.identity());
    if (state) collectStamps(*state, stamps);
  } else if constexpr (std::same_as<State, ScrollChartFeature::State>) {
    stamps.push_back(state.data.stamp());
    stamps.push_back(state.now.stamp());
  } else if constexpr (CaseUnion<State>) {
    std::visit([&stamps](const auto& active) { collectStamps(payload(active), stamps); }, state);
  } else if constexpr (Record<const State>) {
    fields(state, [&stamps](std::string_view, const auto& field) { collectStamps(field, stamps); });
  }
}

template <class State>
std::vector<Stamp> stampsOf(const State& state) {
  std::vector<Stamp> stamps;
  collectStamps(state, stamps);
  return stamps;
}

}  // namespace mivo::host

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <variant>

#include "mivo/platform/IssueReporting.h"
#include "mivo/store/Action.h"
#include "mivo/store/Effect.h"
#include "mivo/store/Names.h"
#include "mivo/store/Presentation.h"

namespace mivo {

// A reducer is a feature, a value with `Effect<Action> reduce(State&, const Action&) const`, or a function of the same
// shape. A feature's body is one expression that reads as its order:
//
//     return combine(binding(),
//                    scope<Action::fastingChartAction>(&State::fastingChart, scrollChart),
//                    [this](State& s, const Action& a) { return core(s, a); },
//                    presenting<Action::destination>(&State::destination, destinations))(state, action);
//
// The pieces refer to child features that outlive the expression and hold those that do not.

template <class Reducer, class State, class Action>
Effect<Action> reduceWith(const Reducer& reducer, State& state, const Action& action) {
  if constexpr (requires { reducer.reduce(state, action); })
    return reducer.reduce(state, action);
  else
    return reducer(state, action);
}

/// Every reducer in turn on every action; their effects run beside each other.
template <class... Reducers>
auto combine(Reducers... reducers) {
  return [... reducers = std::move(reducers)]<class State, class Action>(State& state, const Action& action) {
    Effect<Action> effect;
    (effect.add(reduceWith(reducers, state, action)), ...);
    return effect;
  };
}

template <class Case, class Path, class Child>
struct Scope {
  Path path;
  Child child;

  template <class State, class Action>
  Effect<Action> operator()(State& state, const Action& action) const {
    const Case* chosen = std::get_if<Case>(&action);
    if (!chosen) return {};
    return reduceWith(child, std::invoke(path, state), payload(*chosen)).map([](PayloadOf<Case> childAction) {
      return Action{Case{std::move(childAction)}};
    });
  }
};

/// Runs a child feature on the part of the state at `path` (a member, or a function from state to reference) for the
/// actions that come in that case.
template <class Case, class Path, class Child>
Scope<Case, Path, Child> scope(Path path, Child&& child) {
  return {std::move(path), std::forward<Child>(child)};
}

template <class StateCase, class ActionCase, class Child>
struct CaseScope {
  Child child;

  template <class State, class Action>
  Effect<Action> operator()(State& state, const Action& action) const {
    const ActionCase* chosen = std::get_if<ActionCase>(&action);
    if (!chosen) return {};
    StateCase* active = std::get_if<StateCase>(&state);
    if (!active) {
      reportIssue(std::string{typeName<ActionCase>()} + ": an action arrived while another screen was presented");
      return {};
    }
    return reduceWith(child, payload(*active), payload(*chosen)).map([](PayloadOf<ActionCase> childAction) {
      return Action{ActionCase{std::move(childAction)}};
    });
  }
};

/// Runs the feature of one case of an enumeration of screens. An action for a case that is not the active one is
/// reported as an issue and ignored.
template <class StateCase, class ActionCase, class Child>
CaseScope<StateCase, ActionCase, Child> whenCase(Child&& child) {
  return {std::forward<Child>(child)};
}

template <class Case, class Path, class Child>
struct Presenting {
  Path path;
  Child child;

  template <class State, class Action>
  Effect<Action> operator()(State& state, const Action& action) const {
    const Case* chosen = std::get_if<Case>(&action);
    if (!chosen) return {};
    auto& presentation = std::invoke(path, state);
    using Sent = PayloadOf<Case>;
    const auto* sent = std::get_if<typename Sent::presented>(&payload(*chosen));
    if (!sent) {
      presentation = {};
      return {};
    }
    if (!presentation) {
      reportIssue(std::string{typeName<Case>()} + ": an action arrived while nothing was presented");
      return {};
    }
    const Stamp identity = presentation.identity();
    return reduceWith(child, *presentation, sent->action)
        .map([](auto childAction) { return Action{Case{Sent{typename Sent::presented{std::move(childAction)}}}}; })
        .ownedBy(identity);
  }
};

/// Runs the presented child, and clears it when it is dismissed. The child's effects end with its presentation. An
/// action that arrives while nothing is presented is reported as an issue and ignored.
template <class Case, class Path, class Child>
Presenting<Case, Path, Child> presenting(Path path, Child&& child) {
  return {std::move(path), std::forward<Child>(child)};
}

/// Applies the writes of the case `binding`.
inline auto binding() {
  return []<class State, class Action>(State& state, const Action& action) -> Effect<Action> {
    if (const auto* chosen = std::get_if<typename Action::binding>(&action))
      std::visit([&state](const auto& write) { apply(write, state); }, payload(*chosen));
    return {};
  };
}

/// The reducer of a screen whose work is done elsewhere.
struct EmptyReducer {
  template <class State, class Action>
  Effect<Action> reduce(State&, const Action&) const {
    return {};
  }
};

}  // namespace mivo

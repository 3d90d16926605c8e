// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <optional>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "mivo/store/Action.h"
#include "mivo/store/Observed.h"

namespace mivo {

/// The state of a presented screen, or nothing:
///
///     state.destination = Destination::State::badges{...};   // presents, and replaces what was there
///     state.destination = std::nullopt;                      // dismisses
///
/// Each presentation has an identity of its own. Once the store's state no longer holds it, whoever cleared or replaced
/// it, the store cancels the effects of that screen. Equality looks at the presented state only.
template <class State>
class Presentation {
 public:
  Presentation() = default;
  Presentation(std::nullopt_t) {}
  template <class Presented>
    requires(std::convertible_to<Presented, State> && !std::same_as<std::remove_cvref_t<Presented>, Presentation>)
  Presentation(Presented&& presented) : child(std::forward<Presented>(presented)), life{nextStamp()} {}

  explicit operator bool() const { return child.has_value(); }
  const State& operator*() const { return *child; }
  State& operator*() { return *child; }
  const State* operator->() const { return &*child; }
  State* operator->() { return &*child; }

  /// 0 where nothing is presented; observers compare it as they compare stamps.
  Stamp identity() const { return life; }

  friend bool operator==(const Presentation& one, const Presentation& other) { return one.child == other.child; }

 private:
  std::optional<State> child;
  Stamp life = 0;
};

template <class Candidate>
inline constexpr bool isPresentation = false;
template <class State>
inline constexpr bool isPresentation<Presentation<State>> = true;

/// Calls `visit(identity)` for everything that a state presents, and for what that presents in turn.
template <class State, class Visit>
void forEachPresented(const State& state, const Visit& visit) {
  if constexpr (isPresentation<State>) {
    if (!state) return;
    visit(state.identity());
    forEachPresented(*state, visit);
  } else if constexpr (CaseUnion<State>) {
    std::visit([&visit](const auto& active) { forEachPresented(payload(active), visit); }, state);
  } else if constexpr (Record<const State>) {
    fields(state, [&visit](std::string_view, const auto& field) { forEachPresented(field, visit); });
  }
}

}  // namespace mivo

// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>

#include "mivo/model/Record.h"
#include "mivo/store/Observed.h"

namespace mivo {

// An action is a union of named cases. They stand in a base, because a struct nested in `Action` itself is still
// incomplete where `Action` names it:
//
//     struct Cases {
//       struct onAppear { bool operator==(const onAppear&) const = default; };
//       struct didTapBar { UUID id; bool operator==(const didTapBar&) const = default; };
//     };
//     struct Action : Cases, std::variant<Cases::onAppear, Cases::didTapBar> { using variant::variant; };
//
// The state of an enumeration of screens is built the same way. An action without cases is one that cannot be made:
// `struct Action { Action() = delete; };`.

/// A union of cases: a variant, or what derives from one.
template <class Candidate>
concept CaseUnion =
    requires(const Candidate& candidate) { []<class... Case>(const std::variant<Case...>&) {}(candidate); };

/// The one field of a case.
template <class Case>
auto& payload(Case& value) {
  auto& [field] = value;
  return field;
}

template <class Case>
using PayloadOf = std::remove_cvref_t<decltype(payload(std::declval<Case&>()))>;

/// What a presented screen sends: an action of its own, or that it was dismissed.
template <class ChildAction>
struct PresentationCases {
  struct dismiss {
    bool operator==(const dismiss&) const = default;
  };
  struct presented {
    ChildAction action;
    bool operator==(const presented&) const = default;
  };
};

template <class ChildAction>
struct PresentationAction : PresentationCases<ChildAction>,
                            std::variant<typename PresentationCases<ChildAction>::dismiss,
                                         typename PresentationCases<ChildAction>::presented> {
  using std::variant<typename PresentationCases<ChildAction>::dismiss,
                     typename PresentationCases<ChildAction>::presented>::variant;
};

template <class Member>
struct BoundField;
template <class State, class Value>
struct BoundField<Observed<Value> State::*> {
  using Type = Value;
};

/// A write of one field of a state, as a value that compares and prints.
template <auto member>
struct Write {
  typename BoundField<decltype(member)>::Type value;
  bool operator==(const Write&) const = default;
};

/// The writes that a feature lets its views do, named by their fields:
///
///     struct binding { Binding<&State::timeRange> action; };
///     store.send(Action::binding{Write<&State::timeRange>{TimeRange::month}});
template <auto... members>
struct Binding : std::variant<Write<members>...> {
  using std::variant<Write<members>...>::variant;
};

template <auto member, class State>
void apply(const Write<member>& write, State& state) {
  state.*member = write.value;
}

}  // namespace mivo

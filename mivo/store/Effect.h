// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <iterator>
#include <memory>
#include <ranges>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "mivo/platform/StopToken.h"
#include "mivo/store/Observed.h"

namespace mivo {

/// How a task reports back: posts the action to the store's main queue. Thread: any. What a task sends after it was
/// cancelled, or after its store is gone, is dropped.
template <class Action>
class Send {
 public:
  explicit Send(std::function<void(Action)> deliver) : post{std::move(deliver)} {}
  void operator()(Action action) const { post(std::move(action)); }

 private:
  std::function<void(Action)> post;
};

template <class Candidate>
inline constexpr bool isOwningPointerToMutable = false;
template <class Pointee>
inline constexpr bool isOwningPointerToMutable<std::shared_ptr<Pointee>> = !std::is_const_v<Pointee>;

template <class Candidate>
inline constexpr bool isReferenceWrapper = false;
template <class Referred>
inline constexpr bool isReferenceWrapper<std::reference_wrapper<Referred>> = true;

/// What may be handed to a task: a copy that shares nothing with the state. Clients are `shared_ptr<const Service>`.
template <class Value>
concept TaskValue = std::copy_constructible<Value> && !std::is_pointer_v<Value> && !std::is_member_pointer_v<Value> &&
                    !isReferenceWrapper<Value> && !isOwningPointerToMutable<Value> && !isObserved<Value> &&
                    (!std::ranges::range<Value> || !std::ranges::borrowed_range<Value>);

/// Refuses, when it is compiled, to visit a record with observed fields: such a record is a feature's state.
struct RefuseState {
  template <class Field>
  void operator()(std::string_view, Field&&) const {
    static_assert(!isObserved<std::remove_cvref_t<Field>>, "a task gets values, never the state of a feature");
  }
};

/// Work that a reduction asks for: nothing, or tasks that run beside each other and report back by sending actions.
template <class Action>
class Effect {
 public:
  struct Operation {
    std::function<void(const Send<Action>&, StopToken)> run;
    std::vector<Stamp> owners;  ///< identities of the presentations that it ends with
  };

  static Effect none() { return {}; }

  /// A task and copies of what it needs, called as `task(send, stop, values...)` where the store's tasks run:
  ///
  ///     Effect<Action>::run([](Send<Action> send, StopToken, const Client<HealthKitClient>& health) {
  ///       health->shouldRequestAuthorization([send](bool should) { send(Action::didAnswer{should}); });
  ///     }, healthKitClient);
  ///
  /// It may block, and should return soon after `stop` was requested; or leave `send` with whoever answers later, and
  /// is under way for as long as a copy of it is left.
  template <class Task, class... Values>
  static Effect run(Task task, Values... values) {
    static_assert(std::is_empty_v<Task>, "a task captures nothing: pass what it needs by value");
    static_assert((TaskValue<Values> && ...),
                  "a task gets copies of values: no pointer, reference, view or observed field");
    ((void)refuseState<Values>, ...);
    Effect effect;
    effect.all.push_back({[task, ... values = std::move(values)](const Send<Action>& send, StopToken stop) {
                            task(send, std::move(stop), values...);
                          },
                          {}});
    return effect;
  }

  /// All of them, beside each other.
  template <class... Effects>
  static Effect merge(Effect first, Effects... others) {
    (first.add(std::move(others)), ...);
    return first;
  }

  void add(Effect other) {
    if (all.empty())
      all = std::move(other.all);
    else
      all.insert(all.end(), std::move_iterator{other.all.begin()}, std::move_iterator{other.all.end()});
  }

  /// The same work, its actions wrapped by `embed` into those of a parent.
  template <class Embed>
  auto map(Embed embed) && {
    static_assert(std::is_empty_v<Embed>, "an embedding captures nothing");
    using Parent = std::invoke_result_t<Embed, Action>;
    Effect<Parent> mapped;
    for (Operation& operation : all)
      mapped.add({[run = std::move(operation.run), embed](const Send<Parent>& send, StopToken stop) {
                    run(Send<Action>{[send, embed](Action action) { send(embed(std::move(action))); }},
                        std::move(stop));
                  },
                  std::move(operation.owners)});
    return mapped;
  }

  /// The same work, cancelled once the presentation with that identity is over.
  Effect ownedBy(Stamp presentation) && {
    for (Operation& operation : all) operation.owners.push_back(presentation);
    return std::move(*this);
  }

  void add(Operation operation) { all.push_back(std::move(operation)); }

  const std::vector<Operation>& operations() const { return all; }

 private:
  template <class Value>
  static void refuseState(const Value& value) {
    if constexpr (Record<const Value>) fields(value, RefuseState{});
  }

  std::vector<Operation> all;
};

}  // namespace mivo

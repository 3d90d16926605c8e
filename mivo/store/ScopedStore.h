// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <type_traits>
#include <utility>

#include "mivo/platform/Subscription.h"
#include "mivo/store/Action.h"

namespace mivo {

/// One part of a store, for the view of that part: reads a child state, sends its actions. A value that may outlive the
/// store; it then has no state, and what it sends is dropped. Thread: the main one.
template <class State, class Action>
class ScopedStore {
 public:
  using Read = std::function<const State*()>;
  using Deliver = std::function<void(Action)>;
  using Subscribe = std::function<Subscription(std::function<void()>)>;

  ScopedStore(Read reads, Deliver delivers, Subscribe subscribes)
      : read{std::move(reads)}, deliver{std::move(delivers)}, subscribe{std::move(subscribes)} {}

  /// Null while the child is not there, and once the store is gone.
  const State* state() const { return read(); }

  void send(Action action) const { deliver(std::move(action)); }

  /// Calls `observer` once after each action of the whole store while the child is there.
  Subscription observe(std::function<void(const State&)> observer) const {
    return subscribe([read = read, observer = std::move(observer)] {
      if (const State* present = read()) observer(*present);
    });
  }

  template <class Path>
  auto scope(Path path) const {
    using Child = ChildOf<Path>;
    return ScopedStore<Child, Action>{readAt<Child>(std::move(path)), deliver, subscribe};
  }

  template <class Case, class Path>
  auto scope(Path path) const {
    using Child = ChildOf<Path>;
    using ChildAction = PayloadOf<Case>;
    return ScopedStore<Child, ChildAction>{
        readAt<Child>(std::move(path)),
        [deliver = deliver](ChildAction action) { deliver(Action{Case{std::move(action)}}); }, subscribe};
  }

 private:
  template <class Path>
  using ChildOf =
      std::remove_cvref_t<std::remove_pointer_t<std::remove_reference_t<std::invoke_result_t<Path, const State&>>>>;

  template <class Child, class Path>
  auto readAt(Path path) const {
    return [read = read, path = std::move(path)]() -> const Child* {
      const State* whole = read();
      if (!whole) return nullptr;
      if constexpr (std::is_pointer_v<std::remove_cvref_t<std::invoke_result_t<Path, const State&>>>)
        return std::invoke(path, *whole);
      else
        return &std::invoke(path, *whole);
    };
  }

  Read read;
  Deliver deliver;
  Subscribe subscribe;
};

}  // namespace mivo

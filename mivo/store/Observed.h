// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <concepts>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

namespace mivo {

/// Tells one write of a field from every other one in the process. Compared with `!=` only: a state that was put back
/// carries older stamps than the one that it replaces.
using Stamp = std::uint64_t;

/// A stamp that nothing else carries. Thread: any.
inline Stamp nextStamp() {
  static constinit std::atomic<Stamp> last{0};
  return last.fetch_add(1, std::memory_order_relaxed) + 1;
}

/// A list whose copies share one storage, so that telling equal from changed is mostly the comparison of two pointers.
template <class Value>
concept SharedList = requires(const Value& value) {
  { value.sharesStorageWith(value) } -> std::same_as<bool>;
};

/// A leaf field of a state: its value, and the stamp of its last write. It reads as its value.
///
///     state.totalFasts = state.totalFasts + 1;       // stamps, also where the value stays the same
///     state.totalFasts = other.totalFasts.value();   // stamps
///     state = other;                                 // copies the stamps: a state put back unchanged notifies nobody
///
/// Writing a list that equals the one there does nothing. Equality looks at the value only. There is no default, so an
/// aggregate of such fields must be given every one of them. `+=`, `?:` and `std::max` do not see through it: write
/// `.value()`.
template <class Value>
class Observed {
 public:
  Observed() = delete;

  template <class Initial = Value>
    requires(std::convertible_to<Initial, Value> && !std::same_as<std::remove_cvref_t<Initial>, Observed>)
  Observed(Initial&& initial) : held(std::forward<Initial>(initial)), lastWrite{nextStamp()} {}

  template <class Written = Value>
    requires(std::convertible_to<Written, Value> && !std::same_as<std::remove_cvref_t<Written>, Observed>)
  Observed& operator=(Written&& written) {
    if constexpr (SharedList<Value>) {
      Value list(std::forward<Written>(written));
      if (held == list) return *this;
      held = std::move(list);
    } else {
      held = std::forward<Written>(written);
    }
    lastWrite = nextStamp();
    return *this;
  }

  const Value& value() const { return held; }
  operator const Value&() const { return held; }
  const Value& operator*() const { return held; }
  const Value* operator->() const { return &held; }

  /// Compare with `!=`: another stamp means that it was written since.
  Stamp stamp() const { return lastWrite; }

  /// A write that keeps the value.
  void restamp() { lastWrite = nextStamp(); }

  friend bool operator==(const Observed& one, const Observed& other) { return one.held == other.held; }

  template <class Other>
    requires(!std::same_as<Other, Observed> &&
             requires(const Value& value, const Other& other) {
               { value == other } -> std::convertible_to<bool>;
             })
  friend bool operator==(const Observed& one, const Other& other) {
    return one.held == other;
  }

 private:
  Value held;
  Stamp lastWrite;
};

template <class Candidate>
inline constexpr bool isObserved = false;
template <class Value>
inline constexpr bool isObserved<Observed<Value>> = true;

struct AnyField {
  template <class Field>
  void operator()(std::string_view, Field&&) const {}
};

/// A type whose fields are listed by a `fields(record, visit)` (see mivo/model/Record.h).
template <class Candidate>
concept Record = requires(Candidate& record) { fields(record, AnyField{}); };

/// Stamps every observed field of a record anew, those of the records in it too: observers see a new value though the
/// numbers are the same.
template <Record Listed>
void restamp(Listed& record) {
  fields(record, []<class Field>(std::string_view, Field& field) {
    if constexpr (isObserved<Field>)
      field.restamp();
    else if constexpr (Record<Field>)
      restamp(field);
  });
}

}  // namespace mivo

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

namespace mivo {

/// A value that is computed when it is first read, or injected before that. It never goes stale by itself: what it is
/// computed from must not change.
template <class Value>
class Slot {
 public:
  /// The kept value; `compute` is called only where there is none.
  template <class Compute>
  const Value& read(Compute&& compute) {
    if (!kept) kept = std::forward<Compute>(compute)();
    return *kept;
  }

  void write(Value value) { kept = std::move(value); }

 private:
  std::optional<Value> kept;
};

}  // namespace mivo

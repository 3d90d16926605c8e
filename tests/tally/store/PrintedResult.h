// SPDX-License-Identifier: MIT
#pragma once
#include <ostream>

#include "tally/store/CounterStore.h"

namespace mivo::tally {

inline void PrintTo(const Result& result, std::ostream* out) {
  *out << (result.outcome == Outcome::counted ? "counted " : "not counted ") << result.count;
}

}  // namespace mivo::tally

// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <string>

namespace mivo::tally {

/// A counter that an import moves; one that was not there moves from 0.
struct Change {
  std::string counter;
  std::int64_t from = 0;
  std::int64_t to = 0;
  bool operator==(const Change&) const = default;
};

}  // namespace mivo::tally

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <random>

#include "mivo/model/UUID.h"

namespace mivo::data {

/// Chance that is the same on every machine: whole numbers only, since compilers may round sums of doubles differently.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : engine{seed} {}

  /// Evenly from `low` to `high`, both included.
  std::int64_t between(std::int64_t low, std::int64_t high) {
    return low + static_cast<std::int64_t>(engine() % static_cast<std::uint64_t>(high - low + 1));
  }

  bool oneIn(std::int64_t count) { return between(1, count) == 1; }

  /// Around 0 in a bell: two thirds within `spread` on either side, none beyond 3.5 times it.
  std::int64_t bell(std::int64_t spread) {
    std::int64_t sum = 0;
    for (int throws = 0; throws < 4; ++throws) sum += between(-spread, spread);
    return sum * 13 / 15;
  }

  /// An identifier of version 4.
  UUID uuid() {
    const std::uint64_t high = engine(), low = engine();
    return {(high & ~std::uint64_t{0xF000}) | 0x4000, (low >> 2) | std::uint64_t{1} << 63};
  }

 private:
  std::mt19937_64 engine;
};

}  // namespace mivo::data

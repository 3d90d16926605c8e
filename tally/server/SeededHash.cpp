// SPDX-License-Identifier: MIT
#include "tally/server/SeededHash.h"

#include <random>

namespace mivo::tally {

SeededHash::SeededHash() {
  std::random_device random;
  seed = std::uint64_t{random()} << 32U | random();
}

std::size_t SeededHash::operator()(std::uint64_t number) const {
  auto mixed = (number ^ seed) * 0x9e3779b97f4a7c15U;
  mixed = (mixed ^ mixed >> 32U ^ seed) * 0xd6e8feb86659fd93U;
  return mixed ^ mixed >> 29U;
}

}  // namespace mivo::tally

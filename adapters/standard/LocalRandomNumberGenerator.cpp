// SPDX-License-Identifier: MIT
#include "adapters/standard/LocalRandomNumberGenerator.h"

namespace mivo::adapters {

LocalRandomNumberGenerator::LocalRandomNumberGenerator(std::uint64_t seed) : engine{seed} {}

std::uint64_t LocalRandomNumberGenerator::next() const {
  const std::scoped_lock lock{mutex};
  return engine();
}

}  // namespace mivo::adapters

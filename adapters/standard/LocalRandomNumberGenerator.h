// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>
#include <random>

#include "mivo/platform/RandomNumberGenerator.h"

namespace mivo::adapters {

/// A Mersenne twister, seeded by the system unless a seed is given.
class LocalRandomNumberGenerator final : public RandomNumberGenerator {
 public:
  explicit LocalRandomNumberGenerator(std::uint64_t seed = std::random_device{}());
  std::uint64_t next() const override;

 private:
  mutable std::mutex mutex;
  mutable std::mt19937_64 engine;
};

}  // namespace mivo::adapters

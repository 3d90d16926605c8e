// SPDX-License-Identifier: MIT
#include "adapters/standard/LocalUUIDGenerator.h"

#include <random>

namespace mivo::adapters {
namespace {

constexpr std::uint64_t goldenRatio = 0x9E3779B97F4A7C15;

/// The output step of SplitMix64 (Steele, Lea, Flood 2014): a bijection of 64 bits whose outputs for evenly spaced
/// inputs pass the usual tests of randomness. A counter in front of it needs no state to be handed on from one
/// identifier to the next, so threads share nothing but the counter.
constexpr std::uint64_t mixed(std::uint64_t bits) {
  bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9;
  bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EB;
  return bits ^ (bits >> 31);
}

constexpr UUID version4(std::uint64_t high, std::uint64_t low) {
  return {(high & ~std::uint64_t{0xF000}) | 0x4000, (low & (~std::uint64_t{0} >> 2)) | (std::uint64_t{1} << 63)};
}

std::uint64_t systemRandomBits() {
  std::random_device system;
  return std::uniform_int_distribution<std::uint64_t>{}(system);
}

}  // namespace

LocalUUIDGenerator::LocalUUIDGenerator() : seeds{systemRandomBits(), systemRandomBits()} {}

UUID LocalUUIDGenerator::next() const {
  UUID id;
  fill({&id, 1});
  return id;
}

void LocalUUIDGenerator::fill(std::span<UUID> ids) const {
  std::uint64_t step = used.fetch_add(ids.size(), std::memory_order_relaxed) * goldenRatio;
  for (UUID& id : ids) {
    step += goldenRatio;
    id = version4(mixed(seeds[0] + step), mixed(seeds[1] + step));
  }
}

}  // namespace mivo::adapters

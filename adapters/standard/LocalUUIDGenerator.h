// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <span>

#include "mivo/platform/UUIDGenerator.h"

namespace mivo::adapters {

/// Identifiers of version 4, random but for their six fixed bits. Seeded with 128 bits of the system's randomness when
/// it is made and asks the system for nothing afterwards. They are unique, not secret: one tells the next.
///
/// Thread: any, without a lock. Cost: about two nanoseconds an identifier in bulk.
class LocalUUIDGenerator final : public UUIDGenerator {
 public:
  LocalUUIDGenerator();
  UUID next() const override;
  void fill(std::span<UUID> ids) const override;

 private:
  std::array<std::uint64_t, 2> seeds;
  mutable std::atomic<std::uint64_t> used = 0;
};

}  // namespace mivo::adapters

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace mivo {

/// Random numbers for what should look different every time; not for secrets. Thread: any.
class RandomNumberGenerator {
 public:
  virtual ~RandomNumberGenerator() = default;
  /// 64 evenly random bits.
  virtual std::uint64_t next() const = 0;
};

}  // namespace mivo

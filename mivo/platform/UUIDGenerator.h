// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "mivo/model/UUID.h"

namespace mivo {

/// Makes fresh identifiers. Thread: any.
class UUIDGenerator {
 public:
  virtual ~UUIDGenerator() = default;
  virtual UUID next() const = 0;
  /// Fills a whole list at once: charts ask for thousands.
  virtual void fill(std::span<UUID> ids) const = 0;
};

}  // namespace mivo

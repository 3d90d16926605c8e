// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/model/Date.h"

namespace mivo {

/// The clock.
class DateGenerator {
 public:
  virtual ~DateGenerator() = default;
  virtual Date now() const = 0;
};

}  // namespace mivo

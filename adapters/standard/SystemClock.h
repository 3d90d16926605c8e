// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/platform/DateGenerator.h"

namespace mivo::adapters {

/// The machine's clock.
class SystemClock final : public DateGenerator {
 public:
  Date now() const override;
};

}  // namespace mivo::adapters

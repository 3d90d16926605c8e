// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/platform/JSONValue.h"

namespace mivo::adapters {

/// JSON by the rules of RFC 8259, at most `deepest` levels of arrays and objects. Numbers that a double cannot hold are
/// refused.
class NlohmannDecoder final : public JSONDecoder {
 public:
  static constexpr int deepest = 64;
  JSONValue decoded(std::string_view text) const override;
};

}  // namespace mivo::adapters

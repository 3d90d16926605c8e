// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace mivo {

/// Opens links in the user's browser. Thread: any; may take its time, so it is called from tasks only.
class LinkOpener {
 public:
  virtual ~LinkOpener() = default;
  virtual void open(std::string_view url) const = 0;
};

}  // namespace mivo

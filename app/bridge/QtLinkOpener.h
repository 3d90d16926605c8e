// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/platform/LinkOpener.h"

namespace mivo::app {

/// Opens links in the desktop's browser.
class QtLinkOpener final : public LinkOpener {
 public:
  void open(std::string_view url) const override;
};

}  // namespace mivo::app

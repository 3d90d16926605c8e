// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/platform/MainQueue.h"

namespace mivo::app {

/// The main queue on Qt's event loop.
class QtMainQueue final : public MainQueue {
 public:
  void post(std::function<void()> work) const override;
  void postAfter(Duration delay, std::function<void()> work) const override;
};

}  // namespace mivo::app

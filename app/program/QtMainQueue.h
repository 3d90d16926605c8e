// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/platform/MainQueue.h"

namespace mivo::app {

/// The main queue on Qt's event loop. Made on the main thread, once there is an application; let go of on any thread
/// before that application is; what has not run by then never does.
class QtMainQueue final : public MainQueue {
 public:
  QtMainQueue();
  QtMainQueue(const QtMainQueue&) = delete;
  QtMainQueue& operator=(const QtMainQueue&) = delete;
  ~QtMainQueue() override;

  void post(std::function<void()> work) const override;
  void postAfter(Duration delay, std::function<void()> work) const override;

 private:
  class Inbox;
  Inbox* inbox;
};

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <map>

#include "mivo/platform/MainQueue.h"
#include "mivo/platform/TaskRunner.h"

namespace mivo::web {

/// The turns of the one thread, which JavaScript gives: what waits for one, tasks as well as what they come back with.
class Turns final : public MainQueue, public TaskRunner {
 public:
  void post(std::function<void()> work) const override { postAfter(Duration{}, std::move(work)); }
  void postAfter(Duration delay, std::function<void()> work) const override;
  void run(std::function<void()> task) const override { post(std::move(task)); }

  /// Does what waits under a ticket.
  void take(double ticket) const;

 private:
  mutable std::map<double, std::function<void()>> waiting;
  mutable double last = 0;
};

}  // namespace mivo::web

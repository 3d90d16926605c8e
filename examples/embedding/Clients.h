// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <memory>

#include "mivo/platform/Dependencies.h"

/// A main queue and a place for tasks in one: everything runs on the thread that calls `run`, in order. An app hands in
/// its event loop and its threads instead.
class Loop final : public mivo::MainQueue, public mivo::TaskRunner {
 public:
  void post(std::function<void()> work) const override { works.push_back(std::move(work)); }
  void postAfter(mivo::Duration, std::function<void()> work) const override { post(std::move(work)); }
  void run(std::function<void()> task) const override { post(std::move(task)); }

  /// Returns once nothing is left to do.
  void drain() const;

 private:
  mutable std::deque<std::function<void()>> works;
};

/// What the statistics screen asks of its host, in its plainest form: a clock that stands at `now`, UTC, English,
/// settings that are gone at the end.
std::shared_ptr<const mivo::Dependencies> plainClients(mivo::Date now);

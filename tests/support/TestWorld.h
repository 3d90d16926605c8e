// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "mivo/platform/Dependencies.h"
#include "tests/support/FixedClients.h"
#include "tests/support/HandDriven.h"

namespace mivo::tests {

/// Fails the running test at the place of the issue.
struct FailingIssues : IssueReporter {
  void report(std::string_view message, const std::source_location& where) const override;
};

/// Everything that a test of a feature drives by hand, and the dependencies that are made of it:
///
///     TestWorld world;
///     world.dependencies.calendar = ...;          // what the test needs besides
///     const DependencyScope scope = world.enter();
///
/// An issue fails the test. Calendars and the clients of the outside world are left out: asking for one stops the
/// program with a sentence.
struct TestWorld {
  TestWorld();
  /// Lets go of what never ran: it may hold the dependencies, which hold the queue and the tasks.
  ~TestWorld();
  DependencyScope enter() const { return DependencyScope{std::make_shared<const Dependencies>(dependencies)}; }

  Dependencies dependencies = fixedDependencies();
  std::shared_ptr<FixedClock> clock = std::make_shared<FixedClock>(dependencies.date->now());
  std::shared_ptr<const HandDrivenQueue> queue = std::make_shared<HandDrivenQueue>();
  std::shared_ptr<const HandDrivenTasks> tasks = std::make_shared<HandDrivenTasks>();
};

}  // namespace mivo::tests

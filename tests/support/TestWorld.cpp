// SPDX-License-Identifier: MIT
#include "tests/support/TestWorld.h"

#include <gtest/gtest.h>

namespace mivo::tests {

void FailingIssues::report(std::string_view message, const std::source_location& where) const {
  ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line())) << "issue reported: " << message;
}

TestWorld::TestWorld() {
  dependencies.date = clock;
  dependencies.mainQueue = queue;
  dependencies.taskRunner = tasks;
  dependencies.issueReporter = std::make_shared<FailingIssues>();
}

TestWorld::~TestWorld() {
  queue->clear();
  tasks->clear();
}

}  // namespace mivo::tests

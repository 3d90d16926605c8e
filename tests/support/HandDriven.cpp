// SPDX-License-Identifier: MIT
#include "tests/support/HandDriven.h"

#include <algorithm>

namespace mivo::tests {

void HandDrivenQueue::post(std::function<void()> work) const {
  const std::scoped_lock lock{mutex};
  works.push_back(std::move(work));
}

void HandDrivenQueue::postAfter(Duration delay, std::function<void()> work) const {
  const std::scoped_lock lock{mutex};
  delayed.push_back({passed + delay, std::move(work)});
}

std::size_t HandDrivenQueue::count() const {
  const std::scoped_lock lock{mutex};
  return works.size();
}

bool HandDrivenQueue::runOne() const {
  std::function<void()> work;
  {
    const std::scoped_lock lock{mutex};
    if (works.empty()) return false;
    work = std::move(works.front());
    works.pop_front();
  }
  work();
  return true;
}

void HandDrivenQueue::runAll() const {
  while (runOne()) {
  }
}

void HandDrivenQueue::advance(Duration time) const {
  const Duration until = passed + time;
  runAll();
  for (;;) {
    {
      const std::scoped_lock lock{mutex};
      const auto next = std::ranges::min_element(delayed, {}, &Delayed::due);  // the first posted of equal ones
      if (next == delayed.end() || next->due > until) break;
      passed = std::max(passed, next->due);
      works.push_back(std::move(next->work));
      delayed.erase(next);
    }
    runAll();
  }
  passed = until;
}

void HandDrivenQueue::clear() const {
  const std::scoped_lock lock{mutex};
  works.clear();
  delayed.clear();
}

void HandDrivenTasks::runAll() const {
  while (!tasks.empty()) {
    const auto task = std::move(tasks.front());
    tasks.pop_front();
    task();
  }
}

}  // namespace mivo::tests

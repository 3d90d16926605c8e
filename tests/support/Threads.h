// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <thread>
#include <utility>
#include <vector>

namespace mivo::tests {

/// Threads that end before this does; `std::jthread` is not in every standard library that the module is tested with.
class Threads {
 public:
  Threads() = default;
  Threads(Threads&&) = default;
  Threads& operator=(Threads&&) = default;
  ~Threads() { join(); }

  void start(std::function<void()> run) { running.emplace_back(std::move(run)); }

  void join() {
    for (std::thread& thread : running) thread.join();
    running.clear();
  }

 private:
  std::vector<std::thread> running;
};

}  // namespace mivo::tests

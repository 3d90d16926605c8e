// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

namespace mivo {

struct Dependencies;

/// The dependencies in force on this thread; empty where none were set.
std::shared_ptr<const Dependencies> currentContext();

/// Puts dependencies in force on this thread for as long as it lives.
class DependencyScope {
 public:
  explicit DependencyScope(std::shared_ptr<const Dependencies> values);
  ~DependencyScope();
  DependencyScope(const DependencyScope&) = delete;
  DependencyScope& operator=(const DependencyScope&) = delete;

 private:
  std::shared_ptr<const Dependencies> previous;
};

/// Runs `body` with these dependencies in force and returns its result.
template <class Body>
decltype(auto) withDependencies(std::shared_ptr<const Dependencies> values, Body&& body) {
  const DependencyScope scope{std::move(values)};
  return std::forward<Body>(body)();
}

}  // namespace mivo

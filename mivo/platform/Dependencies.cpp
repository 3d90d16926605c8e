// SPDX-License-Identifier: MIT
#include "mivo/platform/Dependencies.h"

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace mivo {
namespace {

thread_local std::shared_ptr<const Dependencies> context;

}  // namespace

std::shared_ptr<const Dependencies> currentContext() { return context; }

DependencyScope::DependencyScope(std::shared_ptr<const Dependencies> values)
    : previous{std::exchange(context, std::move(values))} {}

DependencyScope::~DependencyScope() { context = std::move(previous); }

const Dependencies& currentDependencies() {
  if (context) return *context;
  std::fputs("No dependencies are set on this thread: call withDependencies around what uses them.\n", stderr);
  std::abort();
}

void stopForMissingDependency(const char* type) {
  std::fprintf(stderr, "The current dependencies have no client of type %s: fill it in before it is used.\n", type);
  std::abort();
}

}  // namespace mivo

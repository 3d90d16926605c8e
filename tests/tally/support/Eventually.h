// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <thread>

namespace mivo::tally::test {

/// Asks again and again until the condition holds, or patience ends: for what nobody tells of, such as what a server
/// notices by looking each second. Whether it held.
template <class Condition>
bool eventually(const Condition& holds, std::chrono::seconds patience = std::chrono::seconds{20}) {
  constexpr std::chrono::milliseconds breath{5};
  const auto end = std::chrono::steady_clock::now() + patience;
  while (!holds()) {
    if (std::chrono::steady_clock::now() >= end) return false;
    std::this_thread::sleep_for(breath);
  }
  return true;
}

}  // namespace mivo::tally::test

// SPDX-License-Identifier: MIT
#pragma once
#include <cstdlib>
#include <string>

namespace mivo::tally {

/// An environment variable's value; empty where it is not set.
inline std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string{} : std::string{value};
}

}  // namespace mivo::tally

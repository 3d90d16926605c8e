// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace mivo::app {

/// What the event loop ends with where the program is to start anew in its place: a language is one for a whole
/// process, which keeps sentences once they are made.
inline constexpr int startAnew = 64;

/// The command line of the program that follows: on the settings, and in the language that was chosen last, whatever
/// this one was asked for.
std::vector<std::string> argumentsToStartAnew(const std::vector<std::string>& arguments);

/// Becomes that program. Returns only where the system refuses, with the error in `errno`.
void becomeAnew(const std::vector<std::string>& arguments);

}  // namespace mivo::app

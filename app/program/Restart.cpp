// SPDX-License-Identifier: MIT
#include "app/program/Restart.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace mivo::app {
namespace {

constexpr std::array<std::string_view, 3> dropped{"--locale", "--tab", "--screen"};

}  // namespace

std::vector<std::string> argumentsToStartAnew(const std::vector<std::string>& arguments) {
  std::vector<std::string> again;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    const std::string_view name = std::string_view{*argument}.substr(0, argument->find('='));
    if (std::ranges::find(dropped, name) == dropped.end()) {
      again.push_back(*argument);
    } else if (name == *argument && argument + 1 != arguments.end()) {
      ++argument;  // its value
    }
  }
  again.insert(again.end(), {"--tab", "settings"});
  return again;
}

void becomeAnew(const std::vector<std::string>& arguments) {
  std::vector<std::string> texts = argumentsToStartAnew(arguments);
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  ::execv("/proc/self/exe", pointers.data());
}

}  // namespace mivo::app

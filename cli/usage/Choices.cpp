// SPDX-License-Identifier: MIT
#include "cli/usage/Choices.h"

namespace mivo::cli {

std::string typeName(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? '{' : ',') + name;
  return text + '}';
}

std::string alternatives(const std::vector<std::string>& names) {
  std::string text;
  for (std::size_t place = 0; place < names.size(); ++place) {
    if (place > 0) text += place + 1 == names.size() ? " or " : ", ";
    text += names[place];
  }
  return text;
}

CLI::Option* addFormat(CLI::App& command, std::string& format) {
  return command.add_option("--format", format, "For people to read, or for programs")
      ->type_name(typeName(namesOf(formats)))
      ->capture_default_str();
}

}  // namespace mivo::cli

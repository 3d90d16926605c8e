// SPDX-License-Identifier: MIT
#include "cli/usage/Usage.h"

#include <algorithm>
#include <sstream>

#include "adapters/spelling/ClosestSpelling.h"
#include "cli/terminal/StandardOutput.h"

namespace mivo::cli {
namespace {

std::vector<const CLI::App*> commandsOf(const CLI::App& group) {
  return group.get_subcommands([](const CLI::App*) { return true; });
}

std::vector<std::string> namesOf(const std::vector<const CLI::App*>& commands) {
  std::vector<std::string> names;
  names.reserve(commands.size());
  for (const CLI::App* command : commands) names.push_back(command->get_name());
  return names;
}

std::string listed(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
  return text;
}

bool isOption(const CLI::App& group, const std::string& argument) {
  return group.get_option_no_throw(argument.substr(0, argument.find('='))) != nullptr;
}

/// Whether a group does something itself, without a command behind it.
bool isCommand(const CLI::App& group) { return group.get_require_subcommand_min() == 0; }

/// A group of commands, and the words that led to it.
struct Place {
  const CLI::App* group;
  std::string words;  ///< "weight " behind `mivo weight`

  std::string hint() const { return "mivo " + words + "--help tells what can"; }

  std::string unknown(const std::string& word) const {
    const auto names = namesOf(commandsOf(*group));
    const auto meant = adapters::closestSpelling(word, names);
    if (meant) return words + word + ": did you mean " + words + names[*meant] + '?';
    return withHelp(words + word + ": no such command", hint());
  }
};

}  // namespace

std::string withHelp(std::string sentence, std::string_view help) {
  if (help.empty()) return sentence;
  return sentence.append(" (").append(help).append(")");
}

std::vector<std::string> helpAsOption(std::vector<std::string> arguments) {
  if (arguments.empty() || arguments.front() != "help") return arguments;
  arguments.erase(arguments.begin());
  arguments.emplace_back("--help");
  return arguments;
}

std::optional<std::string> wrongCommand(const CLI::App& program, std::span<const std::string> arguments) {
  Place place{&program, ""};
  bool isAnswered = false;  // by an option of the group: its help, its version
  for (const std::string& argument : arguments) {
    if (argument.starts_with('-')) {
      if (!isOption(*place.group, argument))
        return withHelp(argument.substr(0, argument.find('=')) + ": no such option", place.hint());
      if (isCommand(*place.group)) return std::nullopt;  // which knows its options' values
      isAnswered = true;
      continue;
    }
    const auto commands = commandsOf(*place.group);
    const auto found = std::ranges::find(commands, argument, &CLI::App::get_name);
    if (found == commands.end()) return place.unknown(argument);
    place = {*found, place.words + argument + ' '};
    if (commandsOf(**found).empty()) return std::nullopt;
  }
  if (isAnswered || place.words.empty() || isCommand(*place.group)) return std::nullopt;
  const std::string group = place.words.substr(0, place.words.size() - 1);
  return withHelp(group + ": expected one of " + listed(namesOf(commandsOf(*place.group))), place.hint());
}

int answer(const CLI::App& program, const CLI::ParseError& parsed, const char* hint) {
  if (parsed.get_exit_code() == 0) {
    std::ostringstream out, unused;
    program.exit(parsed, out, unused);
    const auto fault = writeOutput(out.str());
    if (fault) complain(*fault);
    return fault ? atFault : 0;
  }
  std::string sentence = parsed.what();
  sentence.resize(std::min(sentence.find('\n'), sentence.size()));
  complain(withHelp(sentence, hint));
  return wrongUsage;
}

}  // namespace mivo::cli

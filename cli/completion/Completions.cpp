// SPDX-License-Identifier: MIT
#include "cli/completion/Completions.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <string_view>

namespace mivo::cli {
namespace {

bool isShown(const CLI::App* command) { return !command->get_group().empty(); }

std::vector<const CLI::App*> commandsOf(const CLI::App& group) { return group.get_subcommands(isShown); }

bool takesValue(const CLI::Option& option) { return option.get_items_expected_max() > 0; }

/// The values between the braces of "{week,month,year}" or "TEXT:{fasting,settings}".
std::vector<Completion> valuesOf(std::string_view typeName) {
  std::vector<Completion> values;
  const auto open = typeName.find('{'), close = typeName.rfind('}');
  if (open == std::string_view::npos || close == std::string_view::npos) return values;
  std::istringstream names{std::string{typeName.substr(open + 1, close - open - 1)}};
  for (std::string name; std::getline(names, name, ',');) values.push_back({name, ""});
  return values;
}

/// `prefix` is what of the word itself stands before the value.
Completions valueOf(const CLI::Option& option, const std::string& prefix = {}) {
  const std::string type = option.get_type_name();
  Completions found{valuesOf(type)};
  for (Completion& value : found.words) value.word.insert(0, prefix);
  const std::string name = option.get_positional() ? option.get_name(true) : type;
  if (name.find("FILE") != std::string::npos) found.names = Completions::Names::files;
  if (name.find("FOLDER") != std::string::npos) found.names = Completions::Names::folders;
  return found;
}

Completions optionsOf(const CLI::App& command) {
  Completions found;
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_group().empty() || option->get_lnames().empty()) continue;
    found.words.push_back({"--" + option->get_lnames().front(), option->get_description()});
  }
  return found;
}

/// Where the words before the one that is typed lead to.
struct Place {
  const CLI::App* command;
  const CLI::Option* asking = nullptr;  ///< an option that waits for its value
  std::size_t arguments = 0;            ///< of the command, so far
  bool isBehindOptions = false;         ///< behind --

  void pass(const std::string& word) {
    if (asking) {
      asking = nullptr;
    } else if (!isBehindOptions && word == "--") {
      isBehindOptions = true;
    } else if (!isBehindOptions && word.starts_with('-')) {
      const CLI::Option* const option = command->get_option_no_throw(word.substr(0, word.find('=')));
      if (option && takesValue(*option) && word.find('=') == std::string::npos) asking = option;
    } else if (const CLI::App* const next = arguments == 0 ? commandNamed(word) : nullptr) {
      *this = {next};
    } else {
      ++arguments;
    }
  }

  const CLI::App* commandNamed(const std::string& word) const {
    const auto commands = commandsOf(*command);
    const auto found = std::ranges::find(commands, word, &CLI::App::get_name);
    return found == commands.end() ? nullptr : *found;
  }

  Completions completions(const std::string& word) const {
    if (asking) return valueOf(*asking);
    if (!isBehindOptions && word.starts_with('-')) return optionOrItsValue(word);
    if (arguments == 0 && !commandsOf(*command).empty()) return commands();
    return argument();
  }

  Completions optionOrItsValue(const std::string& word) const {
    const auto equals = word.find('=');
    if (equals == std::string::npos) return optionsOf(*command);
    const CLI::Option* const option = command->get_option_no_throw(word.substr(0, equals));
    return option ? valueOf(*option, word.substr(0, equals + 1)) : Completions{};
  }

  Completions commands() const {
    Completions found;
    for (const CLI::App* each : commandsOf(*command))
      found.words.push_back({each->get_name(), each->get_description()});
    return found;
  }

  /// The last argument that a command names is the one that there may be many of.
  Completions argument() const {
    const auto named = command->get_options([](const CLI::Option* option) { return option->get_positional(); });
    if (named.empty()) return {};
    const CLI::Option& last = *named.back();
    if (arguments >= named.size() && last.get_items_expected_max() < CLI::detail::expected_max_vector_size) return {};
    return valueOf(*named[std::min(arguments, named.size() - 1)]);
  }
};

/// "--range", "=", "w" as the words of a shell that parts them are "--range", "w" to us.
std::vector<std::string> withoutEquals(std::span<const std::string> words) {
  std::vector<std::string> kept;
  for (const std::string& word : words) {
    const bool isEquals = word == "=" && !kept.empty() && kept.back().starts_with("--");
    if (!isEquals) kept.push_back(word);
  }
  if (!words.empty() && kept.size() < words.size() && words.back() == "=") kept.emplace_back();
  return kept;
}

}  // namespace

Completions completionsOf(const CLI::App& program, std::span<const std::string> words) {
  std::vector<std::string> typed = withoutEquals(words);
  if (typed.empty()) typed.emplace_back();
  const std::string last = std::move(typed.back());
  typed.pop_back();
  const bool asksHelp = !typed.empty() && typed.front() == "help";
  if (asksHelp) typed.erase(typed.begin());
  Place place{&program};
  for (const std::string& word : typed) place.pass(word);
  if (asksHelp) return commandsOf(*place.command).empty() ? Completions{} : place.commands();
  return place.completions(last);
}

std::string completionLines(const Completions& completions) {
  if (completions.names == Completions::Names::files) return ":files\n";
  if (completions.names == Completions::Names::folders) return ":folders\n";
  std::string lines;
  for (const auto& [word, description] : completions.words)
    lines.append(word).append("\t").append(description).append("\n");
  return lines;
}

}  // namespace mivo::cli

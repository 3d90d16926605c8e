// SPDX-License-Identifier: MIT
#include "adapters/manual/ManualPage.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace mivo::adapters {
namespace {

using CLI::App, CLI::Option;

/// A text that troff prints as it stands: nothing in it is a request or an escape, and a hyphen stays the character
/// that a shell takes.
std::string plain(std::string_view text) {
  std::string escaped;
  for (const char letter : text) {
    const bool beginsLine = escaped.empty() || escaped.back() == '\n';
    switch (letter) {
      case '\\':
        escaped += "\\e";
        break;
      case '-':
        escaped += "\\-";
        break;
      case '\'':
        escaped += "\\(aq";
        break;
      case '`':
        escaped += "\\(ga";
        break;
      case '^':
        escaped += "\\(ha";
        break;
      case '~':
        escaped += "\\(ti";
        break;
      case '.':
        escaped += beginsLine ? "\\&." : ".";
        break;
      default:
        escaped += letter;
    }
  }
  return escaped;
}

std::string bold(std::string_view text) { return "\\fB" + plain(text) + "\\fR"; }
std::string italic(std::string_view text) { return "\\fI" + plain(text) + "\\fR"; }

std::string capitals(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char letter) { return std::toupper(letter); });
  return text;
}

std::string withTilde(std::string text) {
  const char* const home = std::getenv("HOME");
  const auto place = home && *home ? text.find(home) : std::string::npos;
  return place == std::string::npos ? text : text.replace(place, std::string_view{home}.size(), "~");
}

std::vector<const App*> commandsOf(const App& group) {
  return group.get_subcommands([](const App* command) { return !command->get_group().empty(); });
}

std::vector<const Option*> optionsOf(const App& command, bool arePositional) {
  return command.get_options([arePositional](const Option* option) {
    return !option->get_group().empty() && option->get_positional() == arePositional;
  });
}

void append(std::string& text, std::string_view separator, std::string_view next) {
  if (!text.empty()) text += separator;
  text += next;
}

/// Cuts at each separator.
std::vector<std::string> parts(std::string_view text, std::string_view separator) {
  std::vector<std::string> cut;
  for (std::size_t end = 0; end != std::string_view::npos;) {
    end = text.find(separator);
    cut.emplace_back(text.substr(0, end));
    if (end != std::string_view::npos) text.remove_prefix(end + separator.size());
  }
  return cut;
}

std::string withoutEnd(std::string text, std::string_view letters) {
  text.resize(text.find_last_not_of(letters) + 1);
  return text;
}

/// A command with the words that lead to it, "mivo weight add", and all below it.
struct Named {
  const App* command;
  std::string words;
};
void addAll(std::vector<Named>& all, const App& group, const std::string& words) {
  for (const App* command : commandsOf(group)) {
    all.push_back({command, words + ' ' + command->get_name()});
    addAll(all, *command, all.back().words);
  }
}

/// START for one that is needed, [FILE...] for any number.
std::string placeholder(const Option& option) {
  const bool areMany = option.get_items_expected_max() >= CLI::detail::expected_max_vector_size;
  const std::string name = italic(option.get_name(true)) + (areMany ? "..." : "");
  return option.get_required() ? name : '[' + name + ']';
}

std::string synopsis(const Named& named) {
  std::string line = bold(named.words);
  if (!optionsOf(*named.command, false).empty()) line += " [" + italic("OPTIONS") + ']';
  for (const Option* option : optionsOf(*named.command, true)) line += ' ' + placeholder(*option);
  if (commandsOf(*named.command).empty()) return line;
  const std::string command = italic("COMMAND");
  return line + ' ' + (named.command->get_require_subcommand_min() > 0 ? command : '[' + command + ']');
}

/// A list of values may be broken behind each of its commas.
std::string breakable(const std::string& type) {
  std::string text;
  for (const std::string& value : parts(type, ",")) append(text, ",\\:", plain(value));
  return "\\fI" + text + "\\fR";
}

std::string nameAndType(const Option& option) {
  std::string names = option.get_positional() ? italic(option.get_name(true)) : "";
  for (const std::string& name : option.get_snames()) append(names, ", ", bold('-' + name));
  for (const std::string& name : option.get_lnames()) append(names, ", ", bold("--" + name));
  const std::string type = option.get_items_expected_max() > 0 ? option.get_type_name() : "";
  const bool tells = option.get_positional() ? type.find('{') != std::string::npos : !type.empty();
  return tells ? names + ' ' + breakable(type) : names;
}

std::string entry(const std::string& head, const std::string& text) { return ".TP\n" + head + '\n' + text + '\n'; }

std::string described(const Option& option) {
  std::string text = plain(option.get_description());
  const std::string usual = option.get_default_str();
  if (!usual.empty()) text += (text.empty() ? "default: " : "; default: ") + plain(withTilde(usual));
  return entry(nameAndType(option), text.empty() ? "\\&" : text);
}

std::string describedOptions(const App& command) {
  std::string text;
  for (const Option* option : optionsOf(command, true)) text += described(*option);
  for (const Option* option : optionsOf(command, false))
    if (option != command.get_help_ptr() || !command.get_parent()) text += described(*option);
  return text;
}

/// Lines that are indented stay as they are.
std::string paragraph(const std::string& text) {
  const bool isVerbatim = text.starts_with(' ') || text.find("\n ") != std::string::npos;
  return isVerbatim ? ".PP\n.nf\n" + plain(text) + "\n.fi\n" : ".PP\n" + plain(text) + '\n';
}

/// What stands below the options, once, with the commands that it stands with.
struct Footer {
  std::string text;
  std::vector<std::string> commands;
};

std::vector<Footer> footersOf(const std::vector<Named>& all) {
  std::vector<Footer> footers;
  for (const auto& [command, words] : all) {
    const std::string text = withoutEnd(command->get_footer(), "\n");
    if (text.empty()) continue;
    auto footer = std::ranges::find(footers, text, &Footer::text);
    if (footer == footers.end()) footer = footers.insert(footer, {text, {}});
    footer->commands.push_back(words);
  }
  return footers;
}

constexpr std::string_view examplesHead = "Examples:\n", statusHead = "Exit status: ";

struct FooterSections {
  std::string description, examples, statuses, notes;
};

FooterSections sectionsOf(const std::vector<Footer>& footers, const std::string& program) {
  FooterSections sections;
  for (const auto& [text, commands] : footers) {
    std::string names;
    for (const std::string& command : commands) append(names, ", ", bold(command));
    for (const std::string& part : parts(text, "\n\n")) {
      if (part.starts_with(examplesHead))
        sections.examples += paragraph(part.substr(examplesHead.size()));
      else if (part.starts_with(statusHead))
        sections.statuses += entry(names, plain(part.substr(statusHead.size())));
      else
        (commands.front() == program ? sections.description : sections.notes) += paragraph(part);
    }
  }
  return sections;
}

std::string section(std::string_view name, const std::string& text) {
  if (text.empty()) return "";
  constexpr std::string_view paragraphBreak = ".PP\n";  // a section begins with one of its own
  return ".SH " + std::string{name} + '\n' + text.substr(text.starts_with(paragraphBreak) ? paragraphBreak.size() : 0);
}

std::string variables(const std::vector<Named>& all) {
  std::vector<std::string> told;
  std::string text;
  for (const Named& named : all)
    for (const Option* option : optionsOf(*named.command, false)) {
      const std::string name = option->get_envname();
      if (name.empty() || std::ranges::find(told, name) != told.end()) continue;
      text += entry(bold(name), "As " + bold("--" + option->get_lnames().front()) + ", where that is not given.");
      told.push_back(name);
    }
  return text;
}

std::string files(const std::vector<ManualFile>& all) {
  std::string text;
  for (const auto& [file, description] : all) text += entry(italic(withTilde(file.string())), plain(description));
  return text;
}

/// "mivo-tally: counts votes. More." has the name and a line's end too many.
std::string summary(const App& program) {
  std::string line = parts(program.get_description(), "\n").front();
  if (line.starts_with(program.get_name() + ": ")) line.erase(0, program.get_name().size() + 2);
  return withoutEnd(line, ".");
}

}  // namespace

std::string manualPage(const App& program, const ManualFacts& facts) {
  const std::string& name = program.get_name();
  std::vector<Named> all{{&program, name}};
  addAll(all, program, name);
  std::string commands;
  for (const Named& named : all) {
    if (named.command == &program) continue;
    commands += ".SS " + synopsis(named) + '\n' + plain(named.command->get_description()) + ".\n";
    commands += describedOptions(*named.command);
  }
  const FooterSections footers = sectionsOf(footersOf(all), name);
  return ".TH " + plain(capitals(name)) + " 1 \"\" \"" + plain(name + ' ' + facts.version) +
         "\" \"User Commands\"\n.nh\n.ad l\n" +
         section("NAME", plain(name) + " \\- " + plain(summary(program)) + '\n') +
         section("SYNOPSIS", synopsis(all.front()) + '\n') +
         section("DESCRIPTION", plain(program.get_description()) + '\n' + footers.description) +
         section("OPTIONS", describedOptions(program)) + section("COMMANDS", commands) +
         section("EXAMPLES", footers.examples) + section("EXIT STATUS", footers.statuses) +
         section("ENVIRONMENT", variables(all)) + section("FILES", files(facts.files)) +
         section("NOTES", footers.notes);
}

void addManualPage(App& program, ManualFacts facts) {
  program
      .add_flag_callback("--man-page",
                         [&program, facts = std::move(facts)] {
                           throw CLI::CallForVersion(manualPage(program, facts), CLI::ExitCodes::Success);
                         })
      ->group("");
}

}  // namespace mivo::adapters

// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace mivo::cli {

/// What a program leaves with where something failed, and where its command line is not understood.
inline constexpr int atFault = 1, wrongUsage = 2;

/// "No fast is running. (mivo start begins one)": a sentence, and what can be done about it at a terminal, if anything.
std::string withHelp(std::string sentence, std::string_view help);

/// Arguments as they go on to the parser, without the program's own name: `help weight add` becomes
/// `weight add --help`.
std::vector<std::string> helpAsOption(std::vector<std::string> arguments);

/// What is wrong with the words that lead to a command, if anything: the command is unknown ("lsit: did you mean
/// list?"), it is missing behind its group, or an option stands before it that belongs behind it. To be asked before
/// the parser, which says of all three that a subcommand is missing.
std::optional<std::string> wrongCommand(const CLI::App& program, std::span<const std::string> arguments);

/// Answers what the parser threw, and returns the exit status: help and version are answers on standard output;
/// anything else is one line on standard error that ends in `hint`.
int answer(const CLI::App& program, const CLI::ParseError& parsed, const char* hint);

}  // namespace mivo::cli

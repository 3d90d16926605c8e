// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <span>
#include <string>
#include <vector>

namespace mivo::cli {

struct Completion {
  std::string word, description;
};

/// What can stand in a place of a command line: one of some words, or the name of a file or of a folder.
struct Completions {
  enum class Names { none, files, folders };
  std::vector<Completion> words;
  Names names = Names::none;
};

/// What can stand in the place of the last of `words`, which come without the program's name and of which the last may
/// be empty: commands, options where it begins with a hyphen, values of the option before it or of the argument. Only
/// what it begins with decides between those; that the rest fits is left to the shell. Nothing where any text can
/// stand. A shell may part `--range=week` into three words.
///
///     completionsOf(program, {"report", "--range", ""});  // week, month, year
///     completionsOf(program, {"report", "--range=w"});    // --range=week, --range=month, --range=year
Completions completionsOf(const CLI::App& program, std::span<const std::string> words);

/// A line for each word, its description behind a tab; ":files" or ":folders" where names can stand.
std::string completionLines(const Completions& completions);

}  // namespace mivo::cli

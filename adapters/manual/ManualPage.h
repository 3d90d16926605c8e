// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <filesystem>
#include <string>
#include <vector>

namespace mivo::adapters {

/// A file of the user that a program reads or writes.
struct ManualFile {
  std::filesystem::path file;
  std::string description;
};

/// What a man page says that no option does.
struct ManualFacts {
  std::string version;
  std::vector<ManualFile> files;
};

/// The man page (section 1) of a program, in the macros of man: what it and its commands are, take and answer, as
/// --help says it. Of the footers the paragraph "Examples:" goes under EXAMPLES and "Exit status:" under EXIT STATUS,
/// each once, however many commands have it. Paths below the user's home are written with "~", so that the page is the
/// same for all.
std::string manualPage(const CLI::App& program, const ManualFacts& facts);

/// Adds `--man-page`, which help does not list: it answers with the page, as --version does with the version. To be
/// added last. `program` must outlive the parsing.
void addManualPage(CLI::App& program, ManualFacts facts);

}  // namespace mivo::adapters

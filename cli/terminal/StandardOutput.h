// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mivo::cli {

/// What keeps standard output from being written to before anything was; to be asked before any file is opened, since
/// the first one would take a closed output's place. Nothing where it is open.
std::optional<std::string> closedOutput();

/// The columns of the terminal that standard output is; nothing where it is a file or a pipe.
std::optional<int> outputWidth();

/// Writes everything to standard output, or says what became of it: "standard output: No space left on device".
std::optional<std::string> writeOutput(std::string_view text);

/// Writes "mivo: ", the sentence and a line end to standard error.
void complain(std::string_view sentence);

}  // namespace mivo::cli

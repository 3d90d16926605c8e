// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>
#include <string>
#include <string_view>

namespace mivo::cli {

/// Stands before the words that are to be completed, the last of which is being typed.
inline constexpr std::string_view completeOption = "--complete";

/// Adds `completion`. `shell` must outlive the parsing.
const CLI::App& addCompletion(CLI::App& program, std::string& shell);

/// What makes a shell complete the words of `mivo`: bash, zsh or fish. Each asks the program that is being typed,
/// `mivo --complete WORD...`, so that it never offers what another version can do.
std::string shellScript(std::string_view shell);

}  // namespace mivo::cli

// SPDX-License-Identifier: MIT
#pragma once

#include <CLI/App.hpp>

namespace mivo::cli {

/// What a program leaves with where something failed, and where its command line is not understood.
inline constexpr int atFault = 1, wrongUsage = 2;

/// Answers what the parser threw, and returns the exit status: help and version are answers on standard output;
/// anything else is one line on standard error that ends in `hint`.
int answer(const CLI::App& program, const CLI::ParseError& parsed, const char* hint);

}  // namespace mivo::cli

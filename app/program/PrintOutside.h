// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace mivo::app {

/// Runs this program once more, which prints the statistics with the arguments and ends: the window goes on meanwhile.
/// Throws std::runtime_error with the sentence that it ended with where it fails. Thread: any, which waits for it.
void printOutside(const std::filesystem::path& file, const std::vector<std::string>& arguments);

}  // namespace mivo::app

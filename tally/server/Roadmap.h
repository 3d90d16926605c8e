// SPDX-License-Identifier: MIT
#pragma once
#include <filesystem>
#include <string>

namespace mivo::tally {

/// The list of features that is served to the apps: the file's text, checked to be JSON, or the example that is built
/// in where `file` is empty. Throws std::runtime_error with one sentence that names file and byte.
std::string loadRoadmap(const std::filesystem::path& file);

}  // namespace mivo::tally

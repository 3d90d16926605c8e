// SPDX-License-Identifier: MIT
#pragma once
#include <cstddef>
#include <filesystem>
#include <string>

namespace mivo::tally {

/// All bytes of a file. Throws std::runtime_error with what is wrong where it cannot be read, or has more than `most`
/// bytes, whole mebibytes.
std::string contentOf(const std::filesystem::path& file, std::size_t most);

}  // namespace mivo::tally

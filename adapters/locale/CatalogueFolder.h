// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace mivo::adapters {

/// The folder of this program's message catalogues: "share/locale" in the program's own folder or in the nearest folder
/// above it that has one with Mivo's catalogues in it. That finds both those of a build tree and those of the prefix
/// that the program was installed to. Empty where there is none.
std::filesystem::path catalogueFolder();

/// The same, looked for from another folder.
std::filesystem::path catalogueFolder(const std::filesystem::path& programFolder);

}  // namespace mivo::adapters

// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mivo::web {

// Whole files of the origin's private file system, by name. Slashes in names mean nothing. What fails throws
// std::system_error, whose text names the file.

std::vector<std::string> storedNames();
bool isStored(const std::string& name);
/// Nothing where there is none of that name.
std::optional<std::string> readStored(const std::string& name);
/// Whole or not at all, and on disk when it returns.
void replaceStored(const std::string& name, std::string_view content);
void removeStored(const std::string& name);

}  // namespace mivo::web

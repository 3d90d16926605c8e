// SPDX-License-Identifier: MIT
#pragma once
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace mivo::tally {

/// The list of features that is served to the apps.
struct Roadmap {
  using Ids = std::set<std::string, std::less<>>;
  std::shared_ptr<const std::string> text;  // every answer that has it on its way holds it
  /// Of its features; nothing for the example, which says nothing of what others vote on.
  std::optional<Ids> ids;
};

inline constexpr std::size_t largestRoadmap = std::size_t{1} << 20;  // bytes

/// Reads the text as the apps do. Throws std::exception with what is wrong where they would refuse it, or an id cannot
/// be counted.
Roadmap readRoadmap(std::string text);

/// Reads the file so, or takes the example that is built in where `file` is empty. Throws
/// std::runtime_error with one sentence that names the file for one that cannot be read, is larger than a mebibyte,
/// that the apps would refuse, or with an id that cannot be counted.
Roadmap loadRoadmap(const std::filesystem::path& file);

}  // namespace mivo::tally

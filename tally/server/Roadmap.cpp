// SPDX-License-Identifier: MIT
#include "tally/server/Roadmap.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <stdexcept>

#include "tally/server/ExampleRoadmap.h"

namespace mivo::tally {

std::string loadRoadmap(const std::filesystem::path& file) {
  if (file.empty()) return exampleRoadmap;
  std::ifstream in{file, std::ios::binary};
  if (!in) throw std::runtime_error(file.string() + ": " + std::strerror(errno));
  std::string text{std::istreambuf_iterator<char>{in}, {}};
  try {
    [[maybe_unused]] const auto checked = nlohmann::json::parse(text);
  } catch (const nlohmann::json::parse_error& error) {
    throw std::runtime_error(file.string() + ": byte " + std::to_string(error.byte) + ": not JSON");
  }
  return text;
}

}  // namespace mivo::tally

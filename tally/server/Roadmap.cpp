// SPDX-License-Identifier: MIT
#include "tally/server/Roadmap.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <stdexcept>

#include "adapters/json/NlohmannDecoder.h"
#include "mivo/roadmap/RoadmapFeature.h"
#include "tally/request/CounterName.h"
#include "tally/server/ExampleRoadmap.h"

namespace mivo::tally {
namespace {

std::string textOf(const std::filesystem::path& file) {
  std::ifstream in{file, std::ios::binary};
  if (!in) throw std::runtime_error(std::strerror(errno));
  std::string text(largestRoadmap + 1, ' ');
  in.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(in.gcount()));
  if (in.bad()) throw std::runtime_error("cannot be read to its end");
  if (text.size() > largestRoadmap) throw std::runtime_error("is larger than 1 MiB");
  return text;
}

Roadmap::Ids idsOf(const std::string& text) {
  Roadmap::Ids ids;
  for (const auto& entry : RoadmapFile::decoded(adapters::NlohmannDecoder{}.decoded(text)).entries) {
    if (const auto fault = faultOfCounterName("any/feature" + entry.id))
      throw std::runtime_error("the roadmap: feature \"" + entry.id + "\": " + std::string{*fault});
    ids.insert(entry.id);
  }
  return ids;
}

}  // namespace

Roadmap readRoadmap(std::string text) {
  auto ids = idsOf(text);
  return {std::make_shared<const std::string>(std::move(text)), std::move(ids)};
}

Roadmap loadRoadmap(const std::filesystem::path& file) {
  if (file.empty()) return {std::make_shared<const std::string>(exampleRoadmap), std::nullopt};
  try {
    return readRoadmap(textOf(file));
  } catch (const std::exception& error) {
    throw std::runtime_error(file.string() + ": " + error.what());
  }
}

}  // namespace mivo::tally

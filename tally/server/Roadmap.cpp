// SPDX-License-Identifier: MIT
#include "tally/server/Roadmap.h"

#include <stdexcept>

#include "adapters/json/NlohmannDecoder.h"
#include "mivo/roadmap/RoadmapFeature.h"
#include "tally/request/CounterName.h"
#include "tally/server/ExampleRoadmap.h"
#include "tally/server/FileContent.h"

namespace mivo::tally {
namespace {

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
    return readRoadmap(contentOf(file, largestRoadmap));
  } catch (const std::exception& error) {
    throw std::runtime_error(file.string() + ": " + error.what());
  }
}

}  // namespace mivo::tally

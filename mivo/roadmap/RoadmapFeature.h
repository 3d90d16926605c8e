// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "mivo/model/Record.h"
#include "mivo/platform/JSONValue.h"
#include "mivo/platform/LocalizedText.h"
#include "mivo/platform/TextLookup.h"

namespace mivo {

/// A feature of the app that may come, in the user's language.
struct RoadmapFeature {
  std::string id, title, description, status;
  bool operator==(const RoadmapFeature&) const = default;
};

template <RecordOf<RoadmapFeature> Record, class Visit>
void fields(Record& record, Visit&& visit) {
  auto& [id, title, description, status] = record;
  visit("id", id);
  visit("title", title);
  visit("description", description);
  visit("status", status);
}

/// Whether votes for it still count: not once its status is "finished".
bool isOpenForVotes(const RoadmapFeature& feature);

/// "Planned", "In progress", "Finished" in the user's language; any other status as the file spells it.
std::string statusText(std::string_view status, const TextLookup& texts);

/// Where a status stands among those to choose from: planned, in progress, finished, then all others.
std::size_t statusRank(std::string_view status);

/// The roadmap file, which docs/roadmap-file.md describes.
struct RoadmapFile {
  struct Entry {
    std::string id;
    LocalizedText title, description;
    std::string status;
    bool operator==(const Entry&) const = default;
  };
  std::vector<Entry> entries;

  /// Throws DecodingError with the number of the feature, counted from 1, and the field.
  static RoadmapFile decoded(const JSONValue& file);
  /// In the file's order; of entries with the same id the first.
  std::vector<RoadmapFeature> features(std::string_view languageTag) const;

  bool operator==(const RoadmapFile&) const = default;
};

}  // namespace mivo

// SPDX-License-Identifier: MIT
#pragma once
#include <string_view>
#include <variant>

#include "tally/request/Answer.h"

namespace mivo::tally {

struct ReadCount {
  std::string_view counter;  // "NAMESPACE/featureID"
  bool operator==(const ReadCount&) const = default;
};
struct AddVote {
  std::string_view counter;
  int delta = 0;  // 1 or -1
  bool operator==(const AddVote&) const = default;
};
struct ReadRoadmap {
  bool operator==(const ReadRoadmap&) const = default;
};
struct ReadHealth {
  bool operator==(const ReadHealth&) const = default;
};
struct ReadMetrics {
  bool operator==(const ReadMetrics&) const = default;
};
struct ReadRobots {
  bool operator==(const ReadRobots&) const = default;
};
/// Whatever else there may be, by its path: "/index.html".
struct ReadFile {
  std::string_view path;
  bool operator==(const ReadFile&) const = default;
};

inline constexpr Refusal nothingThere{404, "there is nothing at this path"};

using Route = std::variant<Refusal, ReadCount, AddVote, ReadRoadmap, ReadHealth, ReadMetrics, ReadRobots, ReadFile>;

/// What a request target asks for; a Refusal with 404 for one that is no path, with 400 for a counter's name or a delta
/// that is wrong. Query parameters that are not `delta` are ignored, as is the query elsewhere. The views are into
/// `target`.
///
///     routeOf("/add/app.example/feature12?delta=-1");  // AddVote{"app.example/feature12", -1}
Route routeOf(std::string_view target);

}  // namespace mivo::tally

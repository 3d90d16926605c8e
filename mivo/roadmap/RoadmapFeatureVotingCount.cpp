// SPDX-License-Identifier: MIT
#include "mivo/roadmap/RoadmapFeatureVotingCount.h"

namespace mivo {
namespace {

constexpr const char* valueKey = "value";

}  // namespace

RoadmapFeatureVotingCount RoadmapFeatureVotingCount::decoded(const JSONValue& answer) {
  if (!answer.object()) throw DecodingError{"the tally's answer: expected an object"};
  const JSONValue* value = answer.member(valueKey);
  if (!value) return {};
  const auto count = value->whole();
  if (!count) throw DecodingError{"the tally's answer: value: expected a whole number"};
  return {count};
}

JSONValue RoadmapFeatureVotingCount::encoded() const {
  JSONValue::Object members;
  if (value) members.push_back({valueKey, JSONValue{*value}});
  return {std::move(members)};
}

}  // namespace mivo

// SPDX-License-Identifier: MIT
#include "mivo/roadmap/FeatureVoterTallyAPI.h"

#include <exception>
#include <string_view>
#include <utility>

#include "mivo/platform/Dependencies.h"
#include "mivo/platform/LogOutput.h"
#include "mivo/platform/URLSession.h"
#include "mivo/roadmap/JSONDataFetcher.h"
#include "mivo/roadmap/RoadmapFeatureVotingCount.h"

namespace mivo {
namespace {

/// The error itself: `URLError("...")`, and the plain name of the case that has nothing else to say.
std::string debugText(const std::exception& error) {
  const auto named = [&error](const char* type) { return std::string{type} + "(\"" + error.what() + "\")"; };
  if (dynamic_cast<const JSONDataFetcher::Error*>(&error)) return "invalidURL";
  if (dynamic_cast<const URLError*>(&error)) return named("URLError");
  if (dynamic_cast<const DecodingError*>(&error)) return named("DecodingError");
  return named("Error");
}

/// What a server or an address brought into a sentence must not command the terminal that shows it: control characters
/// other than line feed are written as \\x1b.
std::string escaped(std::string_view text) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string result;
  for (std::size_t index = 0; index < text.size(); ++index) {
    const auto byte = static_cast<unsigned char>(text[index]);
    const unsigned next = index + 1 < text.size() ? static_cast<unsigned char>(text[index + 1]) : 0;
    const bool isUnicodeControl = byte == 0xc2 && next >= 0x80 && next <= 0x9f;
    if (byte != '\n' && (byte < 0x20 || byte == 0x7f || isUnicodeControl)) {
      const unsigned code = isUnicodeControl ? next : byte;
      result.append("\\x").append(1, digits[code >> 4U]).append(1, digits[code & 15U]);
      index += isUnicodeControl ? 1 : 0;
    } else {
      result += text[index];
    }
  }
  return result;
}

std::string debugText(const std::optional<std::int64_t>& count) {
  return count ? "Optional(" + std::to_string(*count) + ")" : "nil";
}

using VotingCount = Answer<RoadmapFeatureVotingCount>;

std::int64_t fetched(const VotingCount& answer) {
  try {
    return answer.value().value.value_or(0);
  } catch (const std::exception& error) {
    // In one piece, because several features are fetched beside each other.
    logLine(escaped(debugText(error) + "\nFetching voting count failed with error: " + error.what()));
    return 0;
  }
}

std::optional<std::int64_t> voted(const VotingCount& answer) {
  try {
    const auto count = answer.value().value;
    logLine("Successfully voted, count is now: " + debugText(count));
    return count;
  } catch (const std::exception& error) {
    logLine(escaped(std::string{"Voting failed: "} + error.what()));
    return std::nullopt;
  }
}

}  // namespace

void FeatureVoterTallyAPI::fetch(const RoadmapFeature& feature, StopToken stop, Count completion) const {
  JSONDataFetcher::loadJSON<RoadmapFeatureVotingCount>(
      address("/get/", feature), std::move(stop),
      [completion = std::move(completion)](const VotingCount& answer) { completion(fetched(answer)); });
}

void FeatureVoterTallyAPI::vote(const RoadmapFeature& feature, VoteCount completion) const {
  add(1, feature, std::move(completion));
}

void FeatureVoterTallyAPI::unvote(const RoadmapFeature& feature, VoteCount completion) const {
  add(-1, feature, std::move(completion));
}

void FeatureVoterTallyAPI::add(int delta, const RoadmapFeature& feature, VoteCount completion) const {
  JSONDataFetcher::loadJSONOnce<RoadmapFeatureVotingCount>(
      address("/add/", feature) + "?delta=" + std::to_string(delta),
      [completion = std::move(completion)](const VotingCount& answer) { completion(voted(answer)); });
}

std::string FeatureVoterTallyAPI::address(const char* operation, const RoadmapFeature& feature) const {
  return currentDependencies().servers.tally + operation + namespaceName + "/feature" + feature.id;
}

}  // namespace mivo

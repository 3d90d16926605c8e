// SPDX-License-Identifier: MIT
#include "cli/roadmap/RoadmapCommands.h"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <functional>
#include <iomanip>
#include <latch>
#include <mutex>
#include <sstream>
#include <utility>
#include <vector>

#include "adapters/curl/CurlURLSession.h"
#include "adapters/icu/UserLocale.h"
#include "adapters/json/NlohmannDecoder.h"
#include "adapters/locale/MessageCatalogue.h"
#include "adapters/system/Awaited.h"
#include "adapters/system/FileUserDefaults.h"
#include "adapters/system/ThreadPool.h"
#include "adapters/system/UserDirectories.h"
#include "host/json/JsonWriter.h"
#include "mivo/roadmap/FeatureVoterTallyAPI.h"
#include "mivo/roadmap/JSONDataFetcher.h"
#include "mivo/roadmap/RoadmapFeedbackView.h"
#include "mivo/roadmap/RoadmapListFeature.h"
#include "mivo/roadmap/RoadmapVotes.h"

namespace mivo::cli {
namespace {

constexpr int failed = 1, wrongUsage = 2;

/// Keeps the client's lines, since standard output is for what the command says.
struct CollectedLog final : LogOutput {
  void print(std::string_view lines) const override {
    const std::scoped_lock lock{mutex};
    latest = lines.substr(lines.find_last_of('\n') + 1);
  }
  /// The last line, where there was one.
  std::optional<std::string> line() const {
    const std::scoped_lock lock{mutex};
    return latest.empty() ? std::nullopt : std::optional{latest};
  }
  mutable std::string latest;
  mutable std::mutex mutex;
};

RoadmapRow rowOf(const RoadmapFeature& feature) {
  const RoadmapVotes own{dependency(&Dependencies::userDefaults)};
  return {.feature = feature, .isVoted = own.isVoted(feature.id)};
}

/// Fills in the votes of all rows, asked for beside each other.
void fetchCounts(std::vector<RoadmapRow>& rows, const FeatureVoter& voter) {
  std::latch remaining{static_cast<std::ptrdiff_t>(rows.size())};
  const adapters::ThreadPool threads{8};
  for (RoadmapRow& asked : rows)
    threads.run([&, context = currentContext()] {
      const DependencyScope scope{context};
      voter.fetch(asked.feature, {}, [&](std::int64_t count) {
        asked.count = count;
        remaining.count_down();
      });
    });
  remaining.wait();
  sortByVotes(rows);
}

std::string asText(const std::vector<RoadmapRow>& rows, bool hasVotes, const TextLookup& texts) {
  std::ostringstream out;
  for (const RoadmapRow& row : rows) {
    const RoadmapFeature& feature = row.feature;
    if (hasVotes) out << std::setw(8) << row.count << (row.isVoted ? " * " : "   ");
    out << feature.title << " (" << feature.id;
    if (!feature.status.empty()) out << ", " << statusText(feature.status, texts);
    out << ")\n";
  }
  return std::move(out).str();
}

std::string asJson(const std::vector<RoadmapRow>& rows, bool hasVotes) {
  using Layout = host::JsonWriter::Layout;
  host::JsonWriter json;
  json.beginArray(Layout::spread);
  for (const RoadmapRow& row : rows) {
    json.beginObject(Layout::spread);
    fields(row.feature, [&json](std::string_view name, const std::string& text) {
      json.key(name);
      json.string(text);
    });
    json.key("votes");
    hasVotes ? json.number(row.count) : json.null();
    json.key("isVoted");
    json.boolean(row.isVoted);
    json.endObject();
  }
  json.endArray();
  return std::move(json).text();
}

std::vector<RoadmapFeature> loadedFeatures() {
  const auto url = RoadmapFeedbackView::configuration().roadmapJSONURL;
  const auto file = adapters::awaited<Answer<RoadmapFile>>(
      [&url](auto completion) { JSONDataFetcher::loadJSON<RoadmapFile>(url, {}, completion); });
  return file.value().features(currentDependencies().languageTag);
}

std::string idsOf(const std::vector<RoadmapFeature>& features) {
  std::string ids;
  for (const RoadmapFeature& feature : features) ids += (ids.empty() ? "" : ", ") + feature.id;
  return ids;
}

/// Runs a command with the dependencies and a log of its own in force.
Outcome run(const std::shared_ptr<const Dependencies>& dependencies,
            const std::function<Outcome(const CollectedLog&)>& command) {
  const auto log = std::make_shared<const CollectedLog>();
  auto own = std::make_shared<Dependencies>(*dependencies);
  own->log = log;
  const DependencyScope scope{own};
  try {
    return command(*log);
  } catch (const std::exception& error) {
    return {failed, "", error.what()};
  }
}

Outcome send(bool isVote, const RoadmapFeature& feature, const std::string& namespaceName, const CollectedLog& log) {
  const RoadmapVotes own{dependency(&Dependencies::userDefaults)};
  const auto& texts = *dependency(&Dependencies::texts);
  if (const auto refusal = voteRefusal(rowOf(feature), isVote)) {
    std::string sentence = refusalText(*refusal, feature, texts);
    if (*refusal == VoteRefusal::closed) return {failed, "", std::move(sentence)};
    return {0, std::move(sentence) + '\n', std::nullopt};  // all is as it was wanted
  }
  const FeatureVoterTallyAPI voter{namespaceName};
  const auto count = adapters::awaited<std::optional<std::int64_t>>(
      [&](auto completion) { own.send(isVote, feature, voter, completion); });
  if (!count) return {failed, "", log.line().value_or("the tally service gave no count")};
  return {
      0,
      feature.title + ": " + filledIn(texts.plural("{1} vote", "{1} votes", *count), {std::to_string(*count)}) + '\n',
      std::nullopt};
}

}  // namespace

tl::expected<std::shared_ptr<const Dependencies>, std::string> roadmapDependencies(const RoadmapOptions& options) {
  const auto locale = options.locale.empty()
                          ? tl::expected<adapters::UserLocale, std::string>{adapters::UserLocale::system()}
                          : adapters::UserLocale::parse(options.locale);
  if (!locale) return tl::unexpected{"--locale: " + locale.error()};
  const std::string server = options.tally.substr(0, options.tally.find_last_not_of('/') + 1);
  auto clients = std::make_shared<Dependencies>();
  clients->languageTag = locale->tag();
  clients->texts = std::make_shared<adapters::MessageCatalogue>(locale->tag());
  clients->urlSession = std::make_shared<adapters::CurlURLSession>();
  clients->jsonDecoder = std::make_shared<adapters::NlohmannDecoder>();
  clients->userDefaults = std::make_shared<adapters::FileUserDefaults>(adapters::appDefaultsFile());
  clients->servers = {.tally = server, .roadmap = server};
  clients->bundleIdentifier = options.namespaceName;
  return clients;
}

Outcome listRoadmap(const RoadmapOptions& options, const std::shared_ptr<const Dependencies>& dependencies) {
  return run(dependencies, [&options](const CollectedLog& log) -> Outcome {
    std::vector<RoadmapRow> rows;
    for (const RoadmapFeature& feature : loadedFeatures()) rows.push_back(rowOf(feature));
    const bool hasVotes = RoadmapFeedbackView::configuration().allowVotes;
    if (hasVotes) fetchCounts(rows, FeatureVoterTallyAPI{options.namespaceName});
    const bool isJson = options.format == "json";
    return {0, isJson ? asJson(rows, hasVotes) : asText(rows, hasVotes, *dependency(&Dependencies::texts)), log.line()};
  });
}

Outcome sendVote(bool isVote, const RoadmapOptions& options, const std::shared_ptr<const Dependencies>& dependencies) {
  return run(dependencies, [&options, isVote](const CollectedLog& log) -> Outcome {
    if (!RoadmapFeedbackView::configuration().allowVotes)
      return {wrongUsage, "", "--namespace: expected a name to count votes under, found none"};
    const auto features = loadedFeatures();
    const auto feature = std::ranges::find(features, options.feature, &RoadmapFeature::id);
    if (feature == features.end())
      return {wrongUsage, "",
              "no feature \"" + options.feature + "\" on the roadmap: expected one of " + idsOf(features)};
    return send(isVote, *feature, options.namespaceName, log);
  });
}

}  // namespace mivo::cli

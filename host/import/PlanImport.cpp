// SPDX-License-Identifier: MIT
#include "host/import/PlanImport.h"

#include <algorithm>
#include <compare>
#include <cstddef>
#include <functional>
#include <limits>
#include <optional>
#include <set>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "mivo/model/UUID.h"

namespace mivo::host {
namespace {

/// Two numbers by which records are equal.
struct Key {
  double first, second;
  auto operator<=>(const Key&) const = default;
};

/// A running fast's is no finished one's.
Key keyOf(const FastRecord& record) {
  const auto& [id, start, goalSeconds, finished] = record.fast;
  return {secondsSince1970(start),
          finished ? secondsSince1970(finished->end) : std::numeric_limits<double>::infinity()};
}
Key keyOf(const BodyWeightSample& sample) { return {secondsSince1970(sample.date), sample.weightInKg}; }

/// Which of some keys equal one before them.
template <class Element>
std::vector<bool> repeats(const std::vector<Element>& keys) {
  std::vector<bool> result(keys.size());
  if (std::ranges::adjacent_find(keys, std::greater_equal{}) == keys.end()) return result;  // as in most files
  std::vector<std::pair<Element, std::size_t>> sorted;
  sorted.reserve(keys.size());
  for (std::size_t place = 0; place < keys.size(); ++place) sorted.emplace_back(keys[place], place);
  std::ranges::sort(sorted);
  for (std::size_t next = 1; next < sorted.size(); ++next)
    result[sorted[next].second] = sorted[next].first == sorted[next - 1].first;
  return result;
}

/// The same of the records that are there and those of all files, in this order.
template <class Record>
std::vector<bool> repeats(const std::vector<Record>& present, std::span<const ImportedFile> files,
                          std::vector<Record> ImportedFile::* records) {
  std::vector<Key> keys;
  keys.reserve(present.size());
  for (const Record& record : present) keys.push_back(keyOf(record));
  for (const ImportedFile& file : files)
    for (const Record& record : file.*records) keys.push_back(keyOf(record));
  return repeats(keys);
}

/// Gives another id to those added that have one of the present records, or of one before them.
template <class Record>
void freeIDs(const std::vector<Record>& present, std::vector<Record>& added, const UUIDGenerator& ids) {
  std::vector<UUID> all;
  all.reserve(present.size() + added.size());
  for (const Record& record : present) all.push_back(idOf(record));
  for (const Record& record : std::as_const(added)) all.push_back(idOf(record));
  const std::vector<bool> isTaken = repeats(all);
  if (std::ranges::find(isTaken, true) == isTaken.end()) return;
  std::set<UUID> taken{all.begin(), all.end()};
  for (std::size_t place = 0; place < added.size(); ++place)
    if (isTaken[present.size() + place])
      while (!taken.insert(idOf(added[place])).second) idOf(added[place]) = ids.next();
}

class Merge {
 public:
  Merge(const History& there, std::span<const ImportedFile> files)
      : present{there},
        areFastsThere{repeats(there.fasts, files, &ImportedFile::fasts)},
        areWeightsThere{repeats(there.weights, files, &ImportedFile::weights)},
        isRunning{runningFast(there.fasts) != nullptr} {}

  void add(const ImportedFile& file) {
    counts = {.refused = file.refused.count()};
    plan.refused.add(file.refused);
    for (std::size_t index = 0; index < file.fasts.size(); ++index)
      add(file.fasts[index], file.name, file.lineOfFast(index));
    for (const BodyWeightSample& sample : file.weights) add(sample);
    plan.counts.push_back(counts);
  }

  ImportPlan finish(const UUIDGenerator& ids) {
    freeIDs(present.fasts, plan.change.addedFasts, ids);
    freeIDs(present.weights, plan.change.addedWeights, ids);
    return std::move(plan);
  }

 private:
  void add(const FastRecord& record, const std::string& fileName, std::int64_t line) {
    const bool isRepeat = areFastsThere[present.fasts.size() + fastsSeen++];
    const auto& [id, start, goalSeconds, finished] = record.fast;
    if (finished ? isRepeat : hasStart(start)) {
      ++counts.equal;
      return;
    }
    if (!finished && isRunning) {
      plan.refused.add({fileName, line, "end", {}, "expected an end, since another fast is running already"});
      ++counts.refused;
      return;
    }
    isRunning = isRunning || !finished;
    if (starts) starts->insert(secondsSince1970(start));
    plan.change.addedFasts.push_back(record);
    ++counts.newFasts;
  }

  void add(const BodyWeightSample& sample) {
    if (areWeightsThere[present.weights.size() + weightsSeen++]) {
      ++counts.equal;
      return;
    }
    plan.change.addedWeights.push_back(sample);
    ++counts.newWeights;
  }

  /// Whether a fast that is there or was added has this start, which only a running one asks.
  bool hasStart(Date start) {
    if (!starts) {
      starts.emplace();
      for (const auto* const fasts : {&present.fasts, &std::as_const(plan.change.addedFasts)})
        for (const FastRecord& record : *fasts) starts->insert(secondsSince1970(record.fast.start));
    }
    return starts->contains(secondsSince1970(start));
  }

  const History& present;
  std::vector<bool> areFastsThere, areWeightsThere;
  std::size_t fastsSeen = 0, weightsSeen = 0;
  std::optional<std::unordered_set<double>> starts;
  bool isRunning;
  ImportCounts counts;
  ImportPlan plan;
};

}  // namespace

ImportPlan planImport(const History& present, std::span<const ImportedFile> files, const UUIDGenerator& ids) {
  Merge merge{present, files};
  for (const ImportedFile& file : files) merge.add(file);
  return merge.finish(ids);
}

}  // namespace mivo::host

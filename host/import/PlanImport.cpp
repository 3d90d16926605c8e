// SPDX-License-Identifier: MIT
#include "host/import/PlanImport.h"

#include <bit>
#include <cstddef>
#include <string>
#include <unordered_set>

#include "mivo/model/UUID.h"

namespace mivo::host {
namespace {

/// Two numbers by which records are equal.
struct Key {
  double first, second;
  bool operator==(const Key&) const = default;
};

std::size_t mixed(std::uint64_t first, std::uint64_t second) {
  constexpr std::uint64_t odd = 0x9E3779B97F4A7C15;  // spreads what differs in a few high bits only
  std::uint64_t hash = first * odd;
  hash = (hash ^ hash >> 32 ^ second) * odd;
  return static_cast<std::size_t>(hash ^ hash >> 32);
}

struct Hash {
  // To add 0 makes one of the two zeros, which are equal.
  std::size_t operator()(const Key& key) const {
    return mixed(std::bit_cast<std::uint64_t>(key.first + 0.0), std::bit_cast<std::uint64_t>(key.second + 0.0));
  }
  std::size_t operator()(UUID id) const { return mixed(id.high, id.low); }
};

Key keyOf(const FinishedFastingDataEntry& fast) { return {secondsSince1970(fast.start), secondsSince1970(fast.end)}; }
Key keyOf(const BodyWeightSample& sample) { return {secondsSince1970(sample.date), sample.weightInKg}; }

class Merge {
 public:
  Merge(const History& present, std::size_t recordsToCome, const UUIDGenerator& uuids) : ids{uuids} {
    fasts.reserve(present.fasts.size() + recordsToCome);
    weights.reserve(present.weights.size() + recordsToCome);
    for (const FastRecord& record : present.fasts) {
      keep(record);
      fastIDs.insert(record.fast.id);
    }
    for (const BodyWeightSample& sample : present.weights) {
      weights.insert(keyOf(sample));
      weightIDs.insert(sample.id);
    }
  }

  void add(const ImportedFile& file) {
    counts = {.refused = file.refused.count()};
    for (const BadRecord& bad : file.refused.first()) plan.refused.add(bad);
    plan.refused.addUnseen(file.refused.count() - static_cast<std::int64_t>(file.refused.first().size()));
    for (std::size_t index = 0; index < file.fasts.size(); ++index)
      add(file.fasts[index], file.name, file.lineOfFast(index));
    for (const BodyWeightSample& sample : file.weights) add(sample);
    plan.counts.push_back(counts);
  }

  ImportPlan plan;

 private:
  void keep(const FastRecord& record) {
    starts.insert(Key{secondsSince1970(record.fast.start), 0});
    if (record.fast.finished)
      fasts.insert(keyOf(*record.fast.finished));
    else
      isRunning = true;
  }

  bool isThere(const FastingDataEntry& fast) const {
    return fast.finished ? fasts.contains(keyOf(*fast.finished))
                         : starts.contains(Key{secondsSince1970(fast.start), 0});
  }

  void add(FastRecord record, const std::string& fileName, std::int64_t line) {
    if (isThere(record.fast)) {
      ++counts.equal;
      return;
    }
    if (!record.fast.finished && isRunning) {
      plan.refused.add({fileName, line, "end", {}, "expected an end, since another fast is running already"});
      ++counts.refused;
      return;
    }
    record.fast.id = freeID(record.fast.id, fastIDs);
    keep(record);
    plan.change.addedFasts.push_back(std::move(record));
    ++counts.newFasts;
  }

  void add(BodyWeightSample sample) {
    if (!weights.insert(keyOf(sample)).second) {
      ++counts.equal;
      return;
    }
    sample.id = freeID(sample.id, weightIDs);
    plan.change.addedWeights.push_back(sample);
    ++counts.newWeights;
  }

  UUID freeID(UUID id, std::unordered_set<UUID, Hash>& taken) const {
    while (!taken.insert(id).second) id = ids.next();
    return id;
  }

  const UUIDGenerator& ids;
  std::unordered_set<Key, Hash> fasts, starts, weights;
  std::unordered_set<UUID, Hash> fastIDs, weightIDs;
  bool isRunning = false;
  ImportCounts counts;
};

}  // namespace

ImportPlan planImport(const History& present, std::span<const ImportedFile> files, const UUIDGenerator& ids) {
  std::size_t records = 0;
  for (const ImportedFile& file : files) records += file.fasts.size() + file.weights.size();
  Merge merge{present, records, ids};
  for (const ImportedFile& file : files) merge.add(file);
  return std::move(merge.plan);
}

}  // namespace mivo::host

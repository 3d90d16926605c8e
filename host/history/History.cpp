// SPDX-License-Identifier: MIT
#include "host/history/History.h"

#include <algorithm>

namespace mivo::host {

FastRecord stopped(FastRecord running, Date end) {
  const auto& [id, start, goalSeconds, finished] = running.fast;
  running.fast = finishedFast(id, start, end, goalSeconds);
  return running;
}

std::string describe(const KeptOddity& oddity) {
  const std::int64_t others = oddity.count - 1;
  std::string sentence = describe(oddity.first) + "; kept";
  if (others == 0) return sentence;
  return sentence + ", and so " + (others == 1 ? "is 1" : "are " + std::to_string(others)) + " more like it";
}

std::vector<FastingDataEntry> entries(const std::vector<FastRecord>& fasts) {
  std::vector<FastingDataEntry> result;
  result.reserve(fasts.size());
  for (const auto& record : fasts) result.push_back(record.fast);
  return result;
}

const FastRecord* runningFast(std::span<const FastRecord> fasts) {
  const auto found = std::ranges::find_if(fasts, [](const FastRecord& record) { return !record.fast.finished; });
  return found == fasts.end() ? nullptr : &*found;
}

void sortByDate(std::vector<BodyWeightSample>& weights) {
  if (std::ranges::is_sorted(weights, {}, &BodyWeightSample::date)) return;
  std::ranges::stable_sort(weights, {}, &BodyWeightSample::date);
}

}  // namespace mivo::host

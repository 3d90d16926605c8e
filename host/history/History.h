// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "host/text/BadRecord.h"
#include "mivo/model/BodyWeightSample.h"
#include "mivo/model/Fasts.h"

namespace mivo::host {

/// A fast as the user keeps it: what the calculations read, and a note.
struct FastRecord {
  FastingDataEntry fast;
  std::string note;
  bool operator==(const FastRecord&) const = default;
};

/// The id of a fast or of a weight.
inline UUID idOf(const FastRecord& record) { return record.fast.id; }
inline UUID idOf(const BodyWeightSample& sample) { return sample.id; }
inline UUID& idOf(FastRecord& record) { return record.fast.id; }
inline UUID& idOf(BodyWeightSample& sample) { return sample.id; }

/// The record of a fast that was still running, as it is once it has ended.
FastRecord stopped(FastRecord running, Date end);

/// What was kept although it looks wrong: the first such record, and how many there are.
struct KeptOddity {
  BadRecord first;
  std::int64_t count = 1;
  bool operator==(const KeptOddity&) const = default;
};

/// fasts.csv:7: end: expected an end after the start, found "..."; kept, and so are 3 more like it
std::string describe(const KeptOddity& oddity);

/// A person's records as a file gives them: fasts in the file's order, at most one of them unfinished; weights
/// ascending by date, those of one date in the file's order.
struct History {
  std::vector<FastRecord> fasts;
  std::vector<BodyWeightSample> weights;
  std::optional<KeptOddity> endsBeforeStart;
  bool operator==(const History&) const = default;
};

/// The fasts without their notes, in the same order.
std::vector<FastingDataEntry> entries(const std::vector<FastRecord>& fasts);

/// The fast that is still running; nothing where none is.
const FastRecord* runningFast(std::span<const FastRecord> fasts);

/// Orders weights as `History` keeps them.
void sortByDate(std::vector<BodyWeightSample>& weights);

}  // namespace mivo::host

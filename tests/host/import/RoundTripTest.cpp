// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <set>
#include <utility>

#include "host/history/HistoryCsv.h"
#include "host/history/Snapshot.h"
#include "host/import/ImportReader.h"
#include "host/import/PlanImport.h"
#include "tests/histories/RandomHistories.h"
#include "tests/support/FixedClients.h"

#include "Imported.h"

namespace mivo::host {
namespace {

/// Notes with what separates fields, quotes them, is dropped around them or looks like something else.
rc::Gen<std::string> notes() {
  const auto piece = rc::gen::element<std::string>("", "tea", " ", ",", ";", "\t", "\"", "\n", "\r\n", "\r", "#",
                                                   "null", "ü", "\U0001F375", "=1+1", "''", "\\", "81,4", "--");
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(piece), [](const std::vector<std::string>& pieces) {
    std::string note;
    for (const std::string& one : pieces) note += one;
    return note;
  });
}

/// Fasts without repeats, none of which ends before it starts, one perhaps running; weights of any date.
rc::Gen<History> random() {
  return rc::gen::exec([] {
    History history;
    std::set<std::pair<Date, Date>> known;
    std::uint64_t id = 0;
    for (const auto& [start, end, goal] : *tests::histories(dateSince1970(1772222400.3))) {
      if (end < start || !known.insert({start, end}).second) continue;
      history.fasts.push_back({finishedFast({7, ++id}, start, end, std::max<std::int64_t>(goal, 0)), *notes()});
    }
    if (*rc::gen::inRange(0, 2) == 1)
      history.fasts.push_back({ongoingFast({7, ++id}, dateSince1970(1893456000.125), 59401), *notes()});
    std::set<std::pair<double, double>> weighed;
    for (int count = *rc::gen::inRange(0, 20); count > 0; --count) {
      const double at = *rc::gen::inRange(-2'000'000'000, 2'000'000'000) + *rc::gen::inRange(0, 1000) / 1000.0;
      const double weightInKg = *rc::gen::inRange(1, 10'000'000) / 10'000.0;
      if (weighed.insert({at, weightInKg}).second)
        history.weights.push_back({{8, ++id}, dateSince1970(at), weightInKg});
    }
    sortByDate(history.weights);
    return history;
  });
}

ImportedFile read(std::string_view text) {
  const tests::CountingUUIDs ids;
  ImportReader reader{"a", tests::berlin(), ids};
  reader.feed(text);
  auto file = reader.finish();
  if (!file) RC_FAIL(describe(file.error().bad));
  return std::move(*file);
}

/// What only a snapshot keeps is taken out.
History withoutIDs(History history) {
  for (FastRecord& record : history.fasts) record.fast.id = {};
  for (BodyWeightSample& sample : history.weights) sample.id = {};
  return history;
}

History imported(const std::vector<ImportedFile>& files) {
  const tests::CountingUUIDs ids;
  ImportPlan plan = planImport({}, files, ids);
  RC_ASSERT(plan.refused.count() == 0);
  return {std::move(plan.change.addedFasts), std::move(plan.change.addedWeights), {}};
}

RC_GTEST_PROP(RoundTrip, ofASnapshotIsTheSameHistory, ()) {
  const History history = *random();
  const History again = imported({read(writeSnapshot(history))});
  RC_ASSERT((again == history));
  RC_ASSERT(writeSnapshot(again) == writeSnapshot(history));
}

RC_GTEST_PROP(RoundTrip, ofTablesIsTheSameHistoryButForIDs, ()) {
  const History history = *random();
  const std::string fasts = writeFastsCsv(history.fasts), weights = writeWeightsCsv(history.weights);
  const History again = imported({read(fasts), read(weights)});
  RC_ASSERT((withoutIDs(again) == withoutIDs(history)));
  RC_ASSERT(writeFastsCsv(again.fasts) == fasts);
  RC_ASSERT(writeWeightsCsv(again.weights) == weights);
  const tests::CountingUUIDs ids;
  RC_ASSERT(planImport(history, std::vector{read(fasts), read(weights)}, ids).change.isEmpty());
}

}  // namespace
}  // namespace mivo::host

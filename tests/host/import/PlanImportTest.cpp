// SPDX-License-Identifier: MIT
#include "host/import/PlanImport.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <ostream>
#include <vector>

#include "tests/support/FixedClients.h"

namespace mivo::host {
namespace {

constexpr Date hour(double hours) { return dateSince1970(1772222400 + hours * secondsPerHour); }

FastRecord fast(std::uint64_t id, double start, double end, std::string note = {}, std::int64_t goalHours = 16) {
  return {finishedFast({1, id}, hour(start), hour(end), goalHours * 3600), std::move(note)};
}
FastRecord running(std::uint64_t id, double start) { return {ongoingFast({1, id}, hour(start), 57600), ""}; }
BodyWeightSample weight(std::uint64_t id, double at, double weightInKg) { return {{2, id}, hour(at), weightInKg}; }

struct Records {
  std::vector<FastRecord> fasts = {};
  std::vector<BodyWeightSample> weights = {};
};

ImportedFile file(const Records& records) {
  ImportedFile result{.name = "a.csv", .weights = records.weights};
  std::int64_t line = 1;
  for (const FastRecord& record : records.fasts) {
    result.fasts.push_back(record);
    result.fastLines.push_back(++line);
  }
  return result;
}

struct Row {
  const char* name;
  Records present, brought, added;
  ImportCounts counts;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
class Plan : public testing::TestWithParam<Row> {};

TEST_P(Plan, addsWhatIsNew) {
  const auto& [name, present, brought, added, counts] = GetParam();
  const tests::CountingUUIDs ids;  // 0-1, 0-2, ...
  const std::vector files{file(brought)};
  const ImportPlan plan =
      planImport({.fasts = present.fasts, .weights = present.weights, .endsBeforeStart = {}}, files, ids);
  EXPECT_EQ(plan.change,
            (HistoryChange{
                .removedFasts = {}, .addedFasts = added.fasts, .removedWeights = {}, .addedWeights = added.weights}));
  EXPECT_EQ(plan.counts, std::vector{counts});
  EXPECT_EQ(plan.refused.count(), counts.refused);
}

FastRecord withNewID(FastRecord record) {
  record.fast.id = {0, 1};
  return record;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Plan,
    testing::Values(
        Row{"allNew",
            {},
            {{fast(1, 0, 16, "tea"), running(2, 20)}, {weight(1, 0, 81.4)}},
            {{fast(1, 0, 16, "tea"), running(2, 20)}, {weight(1, 0, 81.4)}},
            {2, 1, 0, 0}},
        Row{"equalKeepsGoalAndNote", {{fast(1, 0, 16, "tea", 18)}}, {{fast(2, 0, 16, "coffee", 12)}}, {}, {0, 0, 1, 0}},
        Row{"anotherEndIsAnotherFast", {{fast(1, 0, 16)}}, {{fast(2, 0, 17)}}, {{fast(2, 0, 17)}}, {1, 0, 0, 0}},
        Row{"repeatsInTheFile",
            {},
            {{fast(1, 0, 16), fast(2, 0, 16)}, {weight(1, 0, 81), weight(2, 0, 81)}},
            {{fast(1, 0, 16)}, {weight(1, 0, 81)}},
            {1, 1, 2, 0}},
        Row{"equalWeights",
            {{}, {weight(1, 0, 81.4)}},
            {{}, {weight(2, 0, 81.4), weight(3, 0, 81.5), weight(4, 1, 81.4)}},
            {{}, {weight(3, 0, 81.5), weight(4, 1, 81.4)}},
            {0, 2, 1, 0}},
        Row{"takenID", {{fast(1, 0, 16)}}, {{fast(1, 20, 36)}}, {{withNewID(fast(1, 20, 36))}}, {1, 0, 0, 0}},
        Row{"idTakenWithinTheFile",
            {},
            {{fast(1, 0, 16), fast(1, 20, 36)}},
            {{fast(1, 0, 16), withNewID(fast(1, 20, 36))}},
            {2, 0, 0, 0}},
        Row{"runningIsThere", {{running(1, 20)}}, {{running(2, 20)}}, {}, {0, 0, 1, 0}},
        Row{"runningHasEndedMeanwhile", {{fast(1, 20, 36)}}, {{running(2, 20)}}, {}, {0, 0, 1, 0}},
        Row{"secondRunning", {{running(1, 20)}}, {{running(2, 44)}}, {}, {0, 0, 0, 1}},
        Row{"runningAmongThem",
            {{fast(1, 0, 16)}},
            {{running(2, 20), running(3, 44), running(4, 20), fast(5, 44, 60), running(6, 44), running(7, 0)}},
            {{running(2, 20), fast(5, 44, 60)}},
            {2, 0, 3, 1}},
        Row{"secondRunningInTheFile", {}, {{running(1, 20), running(2, 44)}}, {{running(1, 20)}}, {1, 0, 0, 1}}),
    [](const auto& row) { return std::string{row.param.name}; });

/// As the rule is said, record by record.
ImportPlan slowPlan(const History& present, const std::vector<ImportedFile>& files, const UUIDGenerator& ids) {
  ImportPlan plan;
  std::vector<FastRecord> fasts = present.fasts;
  for (const ImportedFile& file : files) {
    ImportCounts& counts = plan.counts.emplace_back();
    for (FastRecord record : file.fasts) {
      const auto isEqual = [&](const FastRecord& other) {
        if (!record.fast.finished) return other.fast.start == record.fast.start;
        return other.fast.start == record.fast.start && other.fast.finished &&
               other.fast.finished->end == record.fast.finished->end;
      };
      const auto hasID = [&](const FastRecord& other) { return other.fast.id == record.fast.id; };
      if (std::ranges::any_of(fasts, isEqual)) {
        ++counts.equal;
      } else if (!record.fast.finished && runningFast(fasts) != nullptr) {
        ++counts.refused;
      } else {
        while (std::ranges::any_of(fasts, hasID)) record.fast.id = ids.next();
        fasts.push_back(record);
        plan.change.addedFasts.push_back(record);
        ++counts.newFasts;
      }
    }
  }
  return plan;
}

RC_GTEST_PROP(Plan, isThatOfTheSlowRule, ()) {
  std::uint64_t ids = 0;
  const auto someFasts = [&ids](int runningOnesIn) {
    std::vector<FastRecord> fasts;
    for (int count = *rc::gen::inRange(0, 12); count > 0; --count) {
      const std::uint64_t id = *rc::gen::inRange(0, 3) == 0 ? *rc::gen::inRange<std::uint64_t>(1, ids + 2) : ++ids;
      const double start = *rc::gen::inRange(0, 5);
      const bool runs = *rc::gen::inRange(0, 100) < runningOnesIn;
      fasts.push_back(runs ? running(id, start) : fast(id, start, start + *rc::gen::inRange(0, 3)));
    }
    return fasts;
  };
  History present;
  for (const FastRecord& record : someFasts(0)) {
    const auto hasID = [&](const FastRecord& other) { return other.fast.id == record.fast.id; };
    if (std::ranges::none_of(present.fasts, hasID)) present.fasts.push_back(record);
  }
  const std::vector files{file({someFasts(30)}), file({someFasts(30)})};
  const tests::CountingUUIDs some, others;
  const ImportPlan fast = planImport(present, files, some), slow = slowPlan(present, files, others);
  RC_ASSERT((fast.change == slow.change));
  RC_ASSERT((fast.counts == slow.counts));
  RC_ASSERT(fast.refused.count() == slow.counts[0].refused + slow.counts[1].refused);
}

TEST(Plan, takesFilesAsOne) {
  const tests::CountingUUIDs ids;
  std::vector files{file({{fast(1, 0, 16)}}), file({{fast(2, 0, 16), running(3, 20)}}), file({{running(4, 44)}})};
  for (int count = 0; count < 150; ++count) files[0].refused.add({.file = "a.csv", .line = count});
  const ImportPlan plan = planImport({}, files, ids);
  EXPECT_EQ(plan.counts, (std::vector<ImportCounts>{{1, 0, 0, 150}, {1, 0, 1, 0}, {0, 0, 0, 1}}));
  EXPECT_EQ(plan.refused.count(), 151);
  EXPECT_EQ(plan.refused.first().size(), RefusedRecords::mostKept);
}

}  // namespace
}  // namespace mivo::host

// SPDX-License-Identifier: MIT
#include "data/generate/SampleHistories.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "host/disk/TextFile.h"
#include "host/history/Snapshot.h"
#include "tests/support/FixedClients.h"

namespace mivo::data {
namespace {

class SampleHistory : public testing::TestWithParam<const char*> {};

TEST_P(SampleHistory, isWhatTheGeneratorMakes) {
  const std::string file = MIVO_DATA_FOLDER "/" + std::string{GetParam()} + ".json";
  const auto shipped = host::readTextFile(file);
  ASSERT_TRUE(shipped) << describe(shipped.error());
  const auto made = sampleHistory(GetParam());
  ASSERT_TRUE(made);
  EXPECT_TRUE(*shipped == host::writeSnapshot(*made)) << "make it anew: mivo_generate " << GetParam() << " > " << file;
}

TEST_P(SampleHistory, hasNoOverlapsAndReadsBack) {
  const auto made = sampleHistory(GetParam());
  ASSERT_TRUE(made);
  const auto overlap = std::ranges::adjacent_find(
      made->fasts, [](const auto& one, const auto& next) { return next.fast.start < one.fast.finished->end; });
  EXPECT_EQ(overlap, made->fasts.end());
  EXPECT_EQ(host::readSnapshot(host::writeSnapshot(*made), "sample", tests::CountingUUIDs{}), *made);
}

INSTANTIATE_TEST_SUITE_P(Rows, SampleHistory, testing::ValuesIn(sampleNames), [](const auto& row) {
  std::string name = row.param;
  std::ranges::replace(name, '-', '_');
  return name;
});

TEST(SampleHistories, areAsLongAsTheirNames) {
  const auto span = [](const char* name) {
    const auto history = *sampleHistory(name);
    return secondsBetween(history.fasts.front().fast.start, history.fasts.back().fast.finished->end) / secondsPerDay;
  };
  EXPECT_NEAR(span("three-weeks"), 21, 1);
  EXPECT_NEAR(span("one-year"), 370, 5);
  EXPECT_GE(span("ten-years"), 3652);
  EXPECT_EQ(sampleHistory("ten-years")->fasts.size(), 3650u);
  EXPECT_FALSE(sampleHistory("eleven-years"));
}

}  // namespace
}  // namespace mivo::data

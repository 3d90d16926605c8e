// SPDX-License-Identifier: MIT
#include "host/history/RecordFault.h"

#include <gtest/gtest.h>

#include <limits>

#include "host/history/FieldRules.h"

namespace mivo::host {
namespace {

const Date now = dateSince1970(1772222400);
constexpr double infinity = std::numeric_limits<double>::infinity();

Date hoursAgo(double hours) { return now - Duration{hours * secondsPerHour}; }
FastRecord fast(Date start, Date end, std::int64_t goalSeconds = 57600) {
  return {finishedFast({1, 1}, start, end, goalSeconds), ""};
}

struct FaultRow {
  const char* name;
  FastRecord record;
  std::optional<RecordFault> fault;
};
void PrintTo(const FaultRow& row, std::ostream* out) { *out << row.name; }
class FastFault : public testing::TestWithParam<FaultRow> {};

TEST_P(FastFault, isTheFirst) { EXPECT_EQ(recordFault(GetParam().record, now), GetParam().fault); }

INSTANTIATE_TEST_SUITE_P(
    Rows, FastFault,
    testing::Values(FaultRow{"none", fast(hoursAgo(16), now), std::nullopt},
                    FaultRow{"noLength", fast(now, now), std::nullopt},
                    FaultRow{"running", {ongoingFast({1, 1}, now, 0), ""}, std::nullopt},
                    FaultRow{"startInfinite", fast(dateSince1970(-infinity), now), RecordFault::startOutOfRange},
                    FaultRow{"startLater", {ongoingFast({1, 1}, hoursAgo(-0.01), 0), ""}, RecordFault::startInFuture},
                    FaultRow{"endInfinite", fast(now, dateSince1970(infinity)), RecordFault::endOutOfRange},
                    FaultRow{"endEarlier", fast(now, hoursAgo(0.01)), RecordFault::endBeforeStart},
                    FaultRow{"endLater", fast(now, hoursAgo(-0.01)), RecordFault::endInFuture},
                    FaultRow{"goalNegative", fast(now, now, -1), RecordFault::goalOutOfRange},
                    FaultRow{"goalHuge", fast(now, now, 87'660'000LL * 3600 + 1), RecordFault::goalOutOfRange},
                    FaultRow{"noteLong",
                             {ongoingFast({1, 1}, now, 0), std::string(longestNoteInBytes + 1, 'x')},
                             RecordFault::noteTooLong}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(WeightFault, isTheFirst) {
  const auto fault = [](Date date, double weightInKg) {
    return recordFault(BodyWeightSample{{1, 1}, date, weightInKg}, now);
  };
  EXPECT_EQ(fault(now, 81.4), std::nullopt);
  EXPECT_EQ(fault(dateSince1970(infinity), 81.4), RecordFault::dateOutOfRange);
  EXPECT_EQ(fault(hoursAgo(-1), 81.4), RecordFault::dateInFuture);
  EXPECT_EQ(fault(now, 0), RecordFault::weightOutOfRange);
  EXPECT_EQ(fault(now, 700), std::nullopt);
  EXPECT_EQ(fault(now, 700.1), RecordFault::weightOutOfRange);
}

}  // namespace
}  // namespace mivo::host

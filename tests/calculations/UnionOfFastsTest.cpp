// SPDX-License-Identifier: MIT
#include "mivo/calculations/UnionOfFasts.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "mivo/store/Print.h"
#include "tests/histories/RandomHistories.h"

namespace mivo {
namespace {

using tests::Fasts;

constexpr Date at(double hours) { return dateSince1970(1782864000 + hours * secondsPerHour); }

struct UnionRow {
  const char* name;
  Fasts fasts, expected;
  bool overlaps;
};
void PrintTo(const UnionRow& row, std::ostream* out) { *out << row.name; }
class Union : public testing::TestWithParam<UnionRow> {};

TEST_P(Union, mergesWhatOverlapsOrTouches) {
  EXPECT_EQ(unionOfFasts(GetParam().fasts), GetParam().expected);
  EXPECT_EQ(hasOverlappingFasts(GetParam().fasts), GetParam().overlaps);
}
INSTANTIATE_TEST_SUITE_P(
    Rows, Union,
    testing::Values(
        UnionRow{"none", {}, {}, false}, UnionRow{"one", {{at(8), at(20), 5}}, {{at(8), at(20), 5}}, false},
        UnionRow{"touching", {{at(8), at(20), 5}, {at(20), at(22), 7}}, {{at(8), at(22), 5}}, false},
        UnionRow{"overlapping", {{at(8), at(20), 5}, {at(19), at(22), 7}}, {{at(8), at(22), 5}}, true},
        UnionRow{"inside", {{at(8), at(20), 5}, {at(9), at(10), 7}}, {{at(8), at(20), 5}}, true},
        UnionRow{"apart", {{at(8), at(9), 5}, {at(10), at(11), 7}}, {{at(8), at(9), 5}, {at(10), at(11), 7}}, false},
        UnionRow{
            "afterOneInside", {{at(0), at(9), 0}, {at(1), at(2), 0}, {at(5), at(10), 0}}, {{at(0), at(10), 0}}, true},
        UnionRow{"noLengthAtTheEnd", {{at(8), at(9), 0}, {at(9), at(9), 0}}, {{at(8), at(9), 0}}, false}),
    [](const auto& row) { return std::string{row.param.name}; });

Fasts forwardByStart(Fasts fasts) {
  std::erase_if(fasts, [](const auto& fast) { return fast.end < fast.start; });
  std::ranges::stable_sort(fasts, std::less{}, &FinishedFastingDataEntry::start);
  return fasts;
}

bool isInside(const Fasts& fasts, Date date) {
  return std::ranges::any_of(fasts, [date](const auto& fast) { return fast.start <= date && date <= fast.end; });
}

RC_GTEST_PROP(UnionOfFasts, holdsTheSameInstantsInStretchesApart, ()) {
  const auto fasts = forwardByStart(*tests::histories(at(0)));
  const auto stretches = unionOfFasts(fasts);
  for (std::size_t i = 1; i < stretches.size(); ++i) RC_ASSERT(stretches[i - 1].end < stretches[i].start);
  const auto alike = [&](Date date) { return isInside(fasts, date) == isInside(stretches, date); };
  for (const auto& fast : fasts)  // nothing changes between these instants
    for (const double seconds : {-0.125, 0.0, 0.125})
      RC_ASSERT(alike(fast.start + Duration{seconds}) && alike(fast.end + Duration{seconds}));
}

RC_GTEST_PROP(HasOverlappingFasts, equalsComparingAllPairs, ()) {
  const auto fasts = forwardByStart(*tests::histories(at(0)));
  bool overlaps = false;
  for (std::size_t i = 0; i < fasts.size(); ++i)
    for (std::size_t j = i + 1; j < fasts.size(); ++j) overlaps = overlaps || fasts[j].start < fasts[i].end;
  RC_ASSERT(hasOverlappingFasts(fasts) == overlaps);
}

}  // namespace
}  // namespace mivo

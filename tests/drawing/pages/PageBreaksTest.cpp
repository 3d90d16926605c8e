// SPDX-License-Identifier: MIT
#include "drawing/pages/PageBreaks.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace mivo::drawing {
namespace {

struct PagesRow {
  const char* name;
  std::vector<Stretch> blocks;
  double height;
  std::vector<Stretch> pages;  ///< of 100 points
};
void PrintTo(const PagesRow& row, std::ostream* out) { *out << row.name; }

class Pages : public testing::TestWithParam<PagesRow> {};

TEST_P(Pages, cutNoBlock) { EXPECT_EQ(pageBreaks(GetParam().blocks, GetParam().height, 100), GetParam().pages); }

INSTANTIATE_TEST_SUITE_P(
    Rows, Pages,
    testing::Values(PagesRow{"none", {}, 20, {{0, 20}}}, PagesRow{"one", {{10, 90}}, 95, {{0, 95}}},
                    PagesRow{"firstIsHigher", {{0, 150}}, 160, {{0, 100}, {100, 160}}},
                    PagesRow{"endsWithThePage", {{10, 60}, {70, 100}}, 110, {{0, 100}}},
                    PagesRow{"aPointMore", {{10, 60}, {70, 101}}, 110, {{0, 60}, {70, 110}}},
                    PagesRow{"beside", {{10, 60}, {70, 80}, {70, 130}, {90, 120}}, 140, {{0, 60}, {70, 140}}},
                    PagesRow{"inAnyOrder", {{70, 130}, {10, 60}}, 130, {{0, 60}, {70, 130}}},
                    PagesRow{"three", {{0, 90}, {100, 190}, {200, 290}}, 300, {{0, 90}, {100, 190}, {200, 300}}},
                    PagesRow{"higherThanAPage",
                             {{10, 50}, {60, 310}, {320, 330}},
                             340,
                             {{0, 50}, {60, 160}, {160, 260}, {260, 340}}}),
    [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::drawing

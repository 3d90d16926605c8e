// SPDX-License-Identifier: MIT
#include "adapters/spelling/ClosestSpelling.h"

#include <gtest/gtest.h>

#include <vector>

namespace mivo::adapters {
namespace {

const std::vector<std::string> commands{"report", "start", "stop", "add", "remove", "status", "list", "vote", "unvote"};

struct Row {
  const char *name, *word, *meant;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }
class ClosestSpelling : public testing::TestWithParam<Row> {};

TEST_P(ClosestSpelling, isWhatWasMeant) {
  const auto place = closestSpelling(GetParam().word, commands);
  EXPECT_EQ(place ? commands[*place] : "none of them", GetParam().meant);
}

INSTANTIATE_TEST_SUITE_P(Rows, ClosestSpelling,
                         testing::Values(Row{"swapped", "lsit", "list"}, Row{"swappedAtTheEnd", "lits", "list"},
                                         Row{"missing", "strt", "start"}, Row{"tooMany", "stopp", "stop"},
                                         Row{"wrong", "repart", "report"}, Row{"twoSlips", "umvotte", "unvote"},
                                         Row{"three", "rmv", "none of them"}, Row{"short", "ad", "none of them"},
                                         Row{"shortSwapped", "dad", "add"}, Row{"firstOfEqual", "stat", "start"},
                                         Row{"itself", "vote", "vote"}, Row{"none", "fast", "none of them"},
                                         Row{"empty", "", "none of them"}, Row{"otherCase", "LIST", "none of them"}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(ClosestSpelling, passesAWordOverThatNobodyTyped) {
  const std::string endless(100'000, 'a');
  EXPECT_EQ(closestSpelling(endless, std::vector{endless}), std::nullopt);
}

}  // namespace
}  // namespace mivo::adapters

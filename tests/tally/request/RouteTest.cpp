// SPDX-License-Identifier: MIT
#include "tally/request/Route.h"

#include <gtest/gtest.h>

#include <string>

#include "tally/request/CounterName.h"

namespace mivo::tally {
namespace {

struct RouteRow {
  const char* name;
  std::string target;
  Route expected;
};
void PrintTo(const RouteRow& row, std::ostream* out) { *out << row.name; }

class Routes : public testing::TestWithParam<RouteRow> {};

TEST_P(Routes, leadWhereTheTargetSays) { EXPECT_TRUE(routeOf(GetParam().target) == GetParam().expected); }

constexpr Refusal notFound{404, "there is nothing at this path"};
constexpr Refusal wrongDelta{400, "delta must be given once and be 1 or -1"};
constexpr Refusal wrongName{400, "the counter must be named NAMESPACE/featureID"};
constexpr Refusal wrongId{400, "the feature's id must be made of letters, digits, dots, hyphens and underscores"};
const std::string longestName(128, 'n');
const std::string longestCounter = longestName + "/feature" + longestName;

INSTANTIATE_TEST_SUITE_P(
    Rows, Routes,
    testing::Values(
        RouteRow{"count", "/get/app.example/feature12", ReadCount{"app.example/feature12"}},
        RouteRow{"countWithQuery", "/get/app.example/feature12?x=1", ReadCount{"app.example/feature12"}},
        RouteRow{"wholeAddress", "http://h:1/get/a/feature1", ReadCount{"a/feature1"}},
        RouteRow{"up", "/add/a/feature1?delta=1", AddVote{"a/feature1", 1}},
        RouteRow{"down", "/add/a/feature1?delta=-1", AddVote{"a/feature1", -1}},
        RouteRow{"otherParametersToo", "/add/a/feature1?_=9&delta=-1&x", AddVote{"a/feature1", -1}},
        RouteRow{"textId", "/get/a/featuredark-mode_2.0", ReadCount{"a/featuredark-mode_2.0"}},
        RouteRow{"endsOfTheAlphabets", "/get/azAZ09/feature90ZAza", ReadCount{"azAZ09/feature90ZAza"}},
        RouteRow{"longest", "/get/" + longestName + "/feature" + longestName, ReadCount{longestCounter}},
        RouteRow{"roadmap", "/data/roadmap-mivo.json", ReadRoadmap{}}, RouteRow{"health", "/health", ReadHealth{}},
        RouteRow{"metrics", "/metrics?x", ReadMetrics{}}, RouteRow{"root", "/", ReadFile{"/"}},
        RouteRow{"noPath", "http://host", ReadFile{"/"}}, RouteRow{"star", "*", notFound},
        RouteRow{"nearly", "/healthy", ReadFile{"/healthy"}}, RouteRow{"file", "/a/b.js?x#y", ReadFile{"/a/b.js"}},
        RouteRow{"twoSlashes", "//get/a/feature1", ReadFile{"//get/a/feature1"}},
        RouteRow{"noDelta", "/add/a/feature1", wrongDelta},
        RouteRow{"emptyDelta", "/add/a/feature1?delta=", wrongDelta},
        RouteRow{"two", "/add/a/feature1?delta=2", wrongDelta}, RouteRow{"zero", "/add/a/feature1?delta=0", wrongDelta},
        RouteRow{"plus", "/add/a/feature1?delta=+1", wrongDelta},
        RouteRow{"leadingZero", "/add/a/feature1?delta=01", wrongDelta},
        RouteRow{"tenth", "/add/a/feature1?delta=1.0", wrongDelta},
        RouteRow{"twice", "/add/a/feature1?delta=1&delta=1", wrongDelta},
        RouteRow{"otherName", "/add/a/feature1?Delta=1", wrongDelta},
        RouteRow{"encoded", "/add/a/feature1?delta=%31", wrongDelta}, RouteRow{"noFeature", "/get/a/12", wrongName},
        RouteRow{"noNamespace", "/get/feature12", wrongName},
        RouteRow{"emptyNamespace", "/get//feature12", Refusal{400, "the namespace must not be empty"}},
        RouteRow{"emptyId", "/get/a/feature", Refusal{400, "the feature's id must not be empty"}},
        RouteRow{"longNamespace", "/get/" + longestName + "n/feature1",
                 Refusal{400, "the namespace must not be longer than 128 bytes"}},
        RouteRow{"longId", "/get/a/feature" + longestName + "n",
                 Refusal{400, "the feature's id must not be longer than 128 bytes"}},
        RouteRow{"oddNamespace", "/get/a%2e/feature1",
                 Refusal{400, "the namespace must be made of letters, digits, dots, hyphens and underscores"}},
        RouteRow{"slashInId", "/get/a/feature1/2", wrongId}, RouteRow{"quoteInId", "/get/a/feature'1", wrongId},
        RouteRow{"beforeZero", "/get/a/feature/", wrongId}, RouteRow{"afterNine", "/get/a/feature:", wrongId},
        RouteRow{"beforeA", "/get/a/feature@", wrongId}, RouteRow{"afterZ", "/get/a/feature[", wrongId},
        RouteRow{"beforeSmallA", "/get/a/feature`", wrongId}, RouteRow{"afterSmallZ", "/get/a/feature{", wrongId},
        RouteRow{"otherLetter", "/get/a/feature\xc3\xa4", wrongId}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(CounterName, tellsTheIDOfTheFeature) { EXPECT_EQ(featureIdOf("a.b/featuredark-mode"), "dark-mode"); }

}  // namespace
}  // namespace mivo::tally

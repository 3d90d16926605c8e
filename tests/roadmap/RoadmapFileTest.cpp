// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "adapters/json/NlohmannDecoder.h"
#include "mivo/roadmap/RoadmapFeature.h"
#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

RoadmapFile fileOf(const std::string& json) { return RoadmapFile::decoded(adapters::NlohmannDecoder{}.decoded(json)); }

TEST(RoadmapFile, readsTextsInOneOrSeveralLanguagesAndIdsOfBothKinds) {
  const auto file = fileOf(R"([{"id": 12, "title": "Water log", "more": [1]},
                               {"id": "plan", "title": {"fr": "Plan", "de": "Der Plan"}, "status": "planned",
                                "description": {"en": "A goal for each weekday."}},
                               {"id": "12", "title": "Twice"}])");
  const RoadmapFeature waterLog{"12", "Water log", "", ""};
  const RoadmapFeature plan{"plan", "Der Plan", "A goal for each weekday.", "planned"};
  EXPECT_THAT(file.features("de-AT"), ElementsAre(waterLog, plan));
  EXPECT_THAT(fileOf("[]").features("en"), testing::IsEmpty());
}

TEST(LocalizedText, takesTheUsersLanguageThenEnglishThenTheFirst) {
  const LocalizedText text{{{"fr", "un"}, {"pt-BR", "dois"}, {"pt", "dous"}, {"en", "three"}}};
  EXPECT_EQ(text.in("pt-BR"), "dois");
  EXPECT_EQ(text.in("pt-PT"), "dous");
  EXPECT_EQ(text.in("pt_PT"), "dous");
  EXPECT_EQ(text.in("de"), "three");
  EXPECT_EQ((LocalizedText{{{"fr", "un"}, {"es", "dos"}}}.in("de")), "un");
  EXPECT_EQ(LocalizedText{}.in("de"), "");
}

struct RefusedRow {
  const char *name, *json, *sentence;
};
void PrintTo(const RefusedRow& row, std::ostream* out) { *out << row.name; }
class RefusedRoadmap : public testing::TestWithParam<RefusedRow> {};

TEST_P(RefusedRoadmap, namesTheFeatureAndTheField) {
  try {
    fileOf(GetParam().json);
    FAIL();
  } catch (const DecodingError& error) {
    EXPECT_STREQ(error.what(), GetParam().sentence);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, RefusedRoadmap,
    testing::Values(
        RefusedRow{"object", "{}", "the roadmap: expected a list of features"},
        RefusedRow{"null", "null", "the roadmap: expected a list of features"},
        RefusedRow{"number", "[1]", "the roadmap: feature 1: expected an object"},
        RefusedRow{"noId", R"([{"id": 1, "title": "a"}, {"title": "b"}])",
                   "the roadmap: feature 2: id: expected a text or a whole number"},
        RefusedRow{"emptyId", R"([{"id": "", "title": "a"}])",
                   "the roadmap: feature 1: id: expected a text or a whole number"},
        RefusedRow{"halfId", R"([{"id": 1.5, "title": "a"}])",
                   "the roadmap: feature 1: id: expected a text or a whole number"},
        RefusedRow{"idWithAQuery", R"([{"id": "1?delta=-1", "title": "a"}])",
                   "the roadmap: feature 1: id: expected an id without blanks and /, ?, #, &, =, %, \\, which "
                   "mean something in an address"},
        RefusedRow{"idThatLeadsElsewhere", R"([{"id": "../a", "title": "a"}])",
                   "the roadmap: feature 1: id: expected an id without blanks and /, ?, #, &, =, %, \\, which "
                   "mean something in an address"},
        RefusedRow{"idWithACommand", R"([{"id": "1\u001b[2J", "title": "a"}])",
                   "the roadmap: feature 1: id: expected a text without control characters"},
        RefusedRow{"titleWithACommand", R"([{"id": 1, "title": {"en": "a\u001b]0;b\u0007"}}])",
                   "the roadmap: feature 1: title: expected a text without control characters"},
        RefusedRow{"descriptionWithAUnicodeCommand", R"([{"id": 1, "title": "a", "description": "\u009b2J"}])",
                   "the roadmap: feature 1: description: expected a text without control characters"},
        RefusedRow{"lastUnicodeCommand", R"([{"id": 1, "title": "\u009f"}])",
                   "the roadmap: feature 1: title: expected a text without control characters"},
        RefusedRow{"statusWithACommand", R"([{"id": 1, "title": "a", "status": "\u007f"}])",
                   "the roadmap: feature 1: status: expected a text without control characters"},
        RefusedRow{"noTitle", R"([{"id": 1}])",
                   "the roadmap: feature 1: title: expected a text, or an object of texts by language"},
        RefusedRow{"noLanguage", R"([{"id": 1, "title": {}}])",
                   "the roadmap: feature 1: title: expected a text, or an object of texts by language"},
        RefusedRow{"numberInALanguage", R"([{"id": 1, "title": {"en": "a", "de": 2}}])",
                   "the roadmap: feature 1: title: de: expected a text"},
        RefusedRow{"statusNumber", R"([{"id": 1, "title": "a", "status": 3}])",
                   "the roadmap: feature 1: status: expected a text"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(RoadmapFile, theShippedExampleSpeaksFourLanguages) {
  std::ifstream input{MIVO_SHIPPED_ROADMAP};
  const auto file = fileOf({std::istreambuf_iterator<char>{input}, {}});
  EXPECT_THAT(file.entries, SizeIs(5));
  for (const auto& entry : file.entries) {
    EXPECT_THAT(entry.title.byLanguage, SizeIs(4)) << entry.id;
    EXPECT_THAT(entry.description.byLanguage, SizeIs(4)) << entry.id;
    EXPECT_LT(statusRank(entry.status), 3u) << entry.id << " has a status that is not translated";
  }
}

TEST(RoadmapStatus, knowsThreeAndShowsOthersAsTheyStand) {
  const tests::EnglishTexts texts;
  EXPECT_EQ(statusText("in progress", texts), "In progress");
  EXPECT_EQ(statusText("On ice", texts), "On ice");
  EXPECT_TRUE(isOpenForVotes({"1", "", "", ""}));
  EXPECT_FALSE(isOpenForVotes({"1", "", "", "finished"}));
}

}  // namespace
}  // namespace mivo

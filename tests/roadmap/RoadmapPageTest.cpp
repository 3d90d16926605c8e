// SPDX-License-Identifier: MIT
#include "mivo/roadmap/FeedbackSheet.h"
#include "mivo/roadmap/RoadmapPage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/FixedClients.h"

namespace mivo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using State = RoadmapListFeature::State;

RoadmapRow row(const char* id, const char* status, std::int64_t count = 0, bool isVoted = false) {
  return {.feature = {.id = id, .title = std::string{"Title "} + id, .description = "Text", .status = status},
          .count = count,
          .isVoted = isVoted};
}

State loaded() {
  return {.phase = RoadmapPhase::loaded,
          .rows = List<RoadmapRow>{{row("1", "finished", 3), row("2", "planned", 12, true), row("3", "On ice")}}};
}

RoadmapPage page(const State& state, bool allowsVotes = true) {
  return composeRoadmap(state, allowsVotes, tests::EnglishTexts{}, tests::PlainNumbers{});
}

TEST(RoadmapPage, showsItsFeaturesWithTheirVotes) {
  const RoadmapItem finished{.id = "1",
                             .title = "Title 1",
                             .text = "Text",
                             .status = "finished",
                             .statusName = "Finished",
                             .hasVotes = true,
                             .count = "3",
                             .spokenVote = "Vote for Title 1, 3",
                             .isOpen = false,
                             .isVoted = false};
  const RoadmapPage shown = page(loaded());
  ASSERT_EQ(shown.items.size(), 3u);
  EXPECT_EQ(shown.items[0], finished) << "votes for it are closed";
  EXPECT_TRUE(shown.items[1].isOpen);
  EXPECT_TRUE(shown.items[1].isVoted);
  EXPECT_EQ(shown.items[2].statusName, "On ice") << "as the file spells it";
  EXPECT_EQ(shown.notice, RoadmapNotice{});
}

TEST(RoadmapPage, showsNoVotesWhereNoneAreCounted) {
  for (const RoadmapItem& item : page(loaded(), false).items) {
    EXPECT_FALSE(item.hasVotes) << item.id;
    EXPECT_FALSE(item.isOpen) << item.id;
    EXPECT_EQ(item.count, "") << item.id;
  }
}

TEST(RoadmapPage, offersTheStatusesThatThereAre) {
  State state = loaded();
  state.status = "planned";
  const RoadmapPage chosen = page(state);
  EXPECT_THAT(chosen.filters,
              ElementsAre(RoadmapFilter{"All", std::nullopt, false}, RoadmapFilter{"Planned", "planned", true},
                          RoadmapFilter{"Finished", "finished", false}, RoadmapFilter{"On ice", "On ice", false}));
  ASSERT_EQ(chosen.items.size(), 1u);
  EXPECT_EQ(chosen.items[0].id, "2");

  state.rows = List<RoadmapRow>{{row("7", "")}};
  state.status = std::nullopt;
  EXPECT_THAT(page(state).filters, IsEmpty()) << "nothing to choose";
}

struct PhaseRow {
  RoadmapPhase phase;
  bool isLoading;
  RoadmapNotice notice;
};

TEST(RoadmapPage, saysWhyThereIsNoList) {
  for (const PhaseRow& expected :
       {PhaseRow{RoadmapPhase::idle, true, {}}, PhaseRow{RoadmapPhase::loading, true, {}},
        PhaseRow{RoadmapPhase::loaded, false, {false, "Nothing is planned at the moment.", "", ""}},
        PhaseRow{RoadmapPhase::failed,
                 false,
                 {true, "The roadmap could not be loaded.", "Check the connection and try again.", "Try again"}}}) {
    const RoadmapPage shown = page({.phase = expected.phase});
    EXPECT_EQ(shown.isLoading, expected.isLoading) << static_cast<int>(expected.phase);
    EXPECT_EQ(shown.notice, expected.notice) << static_cast<int>(expected.phase);
  }
}

TEST(RoadmapPage, showsNoVotesOfARoadmapThatCameWithTheApp) {
  State state = loaded();
  const std::size_t count = page(state).items.size();
  state.phase = RoadmapPhase::failed;
  const RoadmapPage shown = page(state);
  EXPECT_EQ(shown.notice.title, "The votes could not be loaded.");
  EXPECT_EQ(shown.notice.button, "Try again");
  ASSERT_EQ(shown.items.size(), count);
  for (const RoadmapItem& item : shown.items) EXPECT_FALSE(item.hasVotes || item.isOpen) << item.title;
  state.phase = RoadmapPhase::loading;
  EXPECT_FALSE(page(state).isLoading) << "what is there stays there while it tries again";
}

TEST(RoadmapPage, saysThatAVoteDidNotGetThrough) {
  State state = loaded();
  EXPECT_EQ(page(state).unsentVote, "");
  state.unsentVote = "2";
  EXPECT_EQ(page(state).unsentVote, "Your vote could not be sent. Please try again later.");
}

TEST(FeedbackSheet, sendsTheIdeaAndTheAddressBelow) {
  EXPECT_FALSE(isIdea(""));
  EXPECT_FALSE(isIdea(" \n"));
  EXPECT_TRUE(isIdea(" a"));
  EXPECT_EQ(feedbackMessage("More charts\n", " \n"), "More charts\n");
  EXPECT_EQ(feedbackMessage("More charts", " me@example.org "), "More charts\n\nme@example.org");
  EXPECT_EQ(composeFeedback(tests::EnglishTexts{}).button, "Send");
}

TEST(RoadmapRows, areSortedByVotesAndKeepTheirOrderWhereEqual) {
  std::vector<RoadmapRow> rows{row("1", "", 3), row("2", "", 12), row("3", "", 3)};
  sortByVotes(rows);
  EXPECT_EQ(rows, (std::vector{row("2", "", 12), row("1", "", 3), row("3", "", 3)}));
}

TEST(RoadmapRows, refuseAVoteThatWouldBePointless) {
  const tests::EnglishTexts texts;
  EXPECT_EQ(voteRefusal(row("1", "planned"), true), std::nullopt);
  EXPECT_EQ(voteRefusal(row("1", "planned", 1, true), false), std::nullopt);
  EXPECT_EQ(voteRefusal(row("1", "planned", 1, true), true), VoteRefusal::votedAlready);
  EXPECT_EQ(voteRefusal(row("1", "planned"), false), VoteRefusal::notVoted);
  EXPECT_EQ(voteRefusal(row("1", "finished", 1, true), false), VoteRefusal::closed);
  const RoadmapFeature feature = row("1", "").feature;
  EXPECT_EQ(refusalText(VoteRefusal::closed, feature, texts), "Title 1 is finished: votes for it are closed.");
  EXPECT_EQ(refusalText(VoteRefusal::votedAlready, feature, texts), "You already voted for Title 1.");
  EXPECT_EQ(refusalText(VoteRefusal::notVoted, feature, texts), "You have no vote for Title 1.");
}

}  // namespace
}  // namespace mivo

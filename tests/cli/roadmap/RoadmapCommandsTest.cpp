// SPDX-License-Identifier: MIT
#include "cli/roadmap/RoadmapCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "tests/http/HttpServer.h"
#include "tests/support/FixedClients.h"

namespace mivo::cli {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* roadmap =
    R"([{"id": 1, "title": {"en": "Water log", "de": "Wassertagebuch"}, "status": "planned"},
        {"id": "plan", "title": "Weekly plan", "status": "in progress"},
        {"id": "old", "title": "Import", "status": "finished"}])";

/// A tally service in a test's memory, and a user's settings.
class RoadmapCommands : public testing::Test {
 protected:
  RoadmapCommands() { options.tally = server.address() + '/'; }

  tests::HttpReply answer(const std::string& target) {
    const std::scoped_lock lock{mutex};
    if (target == "/data/roadmap-mivo.json") return tests::ok(roadmap);
    if (isAway) return tests::status(503);
    const std::string counter = target.substr(5, target.find('?') - 5);
    if (target.starts_with("/add/")) counts[counter] += target.ends_with("delta=1") ? 1 : -1;
    return tests::ok("{\"value\": " + std::to_string(counts[counter]) + "}");
  }

  std::shared_ptr<const Dependencies> dependencies() const {
    auto clients = std::make_shared<Dependencies>(**roadmapDependencies(options));
    clients->userDefaults = defaults;
    return clients;
  }

  Outcome list() const { return listRoadmap(options, dependencies()); }
  Outcome vote(bool isVote, const char* feature) {
    options.feature = feature;
    return sendVote(isVote, options, dependencies());
  }

  std::mutex mutex;
  bool isAway = false;
  std::map<std::string, std::int64_t> counts{{"mivo/feature1", 7}, {"mivo/featureplan", 12}};
  std::shared_ptr<tests::MemoryDefaults> defaults = std::make_shared<tests::MemoryDefaults>();
  RoadmapOptions options{.locale = "en"};
  tests::HttpServer server{[this](const std::string& target) { return answer(target); }};  // stops first
};

TEST_F(RoadmapCommands, listsTheMostWantedFirst) {
  const Outcome listed = list();
  EXPECT_EQ(listed.output,
            "      12   Weekly plan (plan, In progress)\n       7   Water log (1, Planned)\n       0   Import (old, "
            "Finished)\n");
  EXPECT_EQ(listed.status, 0);
  EXPECT_EQ(listed.warning, std::nullopt);
}

TEST_F(RoadmapCommands, speaksTheUsersLanguage) {
  options.locale = "de_AT.UTF-8";
  EXPECT_THAT(list().output, HasSubstr("Wassertagebuch (1, Geplant)"));
  options.locale = "not a locale";
  EXPECT_THAT(roadmapDependencies(options).error(), StartsWith("--locale: "));
}

TEST_F(RoadmapCommands, aVoteChangesTheCountThatIsListed) {
  EXPECT_EQ(vote(true, "1").output, "Water log: 8 votes\n");
  EXPECT_THAT(list().output, HasSubstr("       8 * Water log"));
  EXPECT_EQ(vote(true, "1").output, "You already voted for Water log.\n");
  EXPECT_EQ(counts["mivo/feature1"], 8);
  EXPECT_EQ(vote(false, "1").output, "Water log: 7 votes\n");
  EXPECT_EQ(vote(false, "1").output, "You have no vote for Water log.\n");
  EXPECT_EQ(counts["mivo/feature1"], 7);
}

TEST_F(RoadmapCommands, sendsNoVoteUnderNoName) {
  options.namespaceName = "";
  const Outcome refused = vote(true, "1");
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(refused.warning, "--namespace: expected a name to count votes under, found none");
  EXPECT_EQ(list().output, "Water log (1, Planned)\nWeekly plan (plan, In progress)\nImport (old, Finished)\n");
  EXPECT_FALSE(counts.contains("/feature1")) << "nothing was asked of the service";
}

TEST_F(RoadmapCommands, writesJson) {
  options.format = "json";
  vote(true, "plan");
  EXPECT_EQ(list().output, R"([
  {
    "id": "plan",
    "title": "Weekly plan",
    "description": "",
    "status": "in progress",
    "votes": 13,
    "isVoted": true
  },
  {
    "id": "1",
    "title": "Water log",
    "description": "",
    "status": "planned",
    "votes": 7,
    "isVoted": false
  },
  {
    "id": "old",
    "title": "Import",
    "description": "",
    "status": "finished",
    "votes": 0,
    "isVoted": false
  }
]
)");
}

TEST_F(RoadmapCommands, saysWhatWentWrong) {
  const Outcome stranger = vote(true, "3");
  EXPECT_EQ(stranger.status, 2);
  EXPECT_EQ(stranger.warning, R"(no feature "3" on the roadmap: expected one of 1, plan, old)");
  EXPECT_EQ(vote(true, "old").warning, "Import is finished: votes for it are closed.");

  isAway = true;
  const Outcome away = vote(true, "1");
  EXPECT_EQ(away.status, 1);
  EXPECT_THAT(away.output, IsEmpty());
  EXPECT_EQ(away.warning, "Voting failed: " + server.address() + "/add/mivo/feature1?delta=1: the server answered 503");
  const Outcome listed = list();
  EXPECT_EQ(listed.status, 0);
  EXPECT_THAT(listed.output, HasSubstr("       0   Water log")) << "a vote that failed is not remembered";
  EXPECT_THAT(*listed.warning, StartsWith("Fetching voting count failed with error: "));

  options.tally = "nowhere";
  EXPECT_EQ(list().status, 1);
  EXPECT_EQ(list().warning, R"(The address "nowhere/data/roadmap-mivo.json" is not valid.)");
}

}  // namespace
}  // namespace mivo::cli

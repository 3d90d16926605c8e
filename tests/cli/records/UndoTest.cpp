// SPDX-License-Identifier: MIT
#include <SQLiteCpp/Database.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "host/disk/DatabaseFile.h"
#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;

class Undo : public testing::Test {
 protected:
  std::string said(const std::string& arguments) const {
    const Ran ran = place.run(arguments + " --database d --locale en-US");
    EXPECT_EQ(ran.status, 0) << arguments << ": " << ran.errors;
    return ran.output;
  }

  host::History history() const { return host::openDatabase(place.file("d")).history(); }

  Workplace place;
};

// "Added 3f9a  Feb 28, ...": what stands behind the verb.
std::string record(const std::string& answer) { return answer.substr(answer.find(' ') + 1); }

TEST_F(Undo, takesBackEveryChangeAndDoesItAgain) {
  const std::string added = record(said("add '2026-02-27 20:00' '2026-02-28 12:00'"));
  said("start --at '2026-02-28 20:00'");
  const auto before = history();
  const std::string id = added.substr(0, 4);
  for (const std::string& change : {"edit " + id + " --note tea", std::string{"stop --at '2026-03-01 12:00'"},
                                    "remove " + id, std::string{"weight add 81.4kg"}}) {
    said(change);
    const auto after = history();
    ASSERT_NE(after, before) << change;
    said("undo");
    EXPECT_EQ(history(), before) << change;
    said("undo");
    EXPECT_EQ(history(), after) << change;
    said("undo");
  }
}

TEST_F(Undo, saysWhatIsThereNow) {
  const std::string added = record(said("add '2026-02-27 20:00' '2026-02-28 12:00'"));
  EXPECT_EQ(said("undo"), "Gone again: " + added);
  EXPECT_EQ(said("undo"), "Back again: " + added);
  said("edit " + added.substr(0, 4) + " --goal-hours 18");
  EXPECT_EQ(said("undo"), "As before: " + added);
  const std::string weight = record(said("weight add 81.4kg --at '2026-02-28 07:00'"));
  EXPECT_EQ(said("undo"), "Gone again: " + weight);
  EXPECT_THAT(place.run("undo --database d --locale de-DE").output,
              MatchesRegex("Wieder da: [0-9a-f]{4}  81,4.kg.*\n"));
}

TEST_F(Undo, takesBackWhatTheAppDid) {
  const Date start = dateSince1970(1772222400);
  host::openDatabase(place.file("d")).apply(host::adding({ongoingFast({1, 1}, start, 57600), "tea"}));
  EXPECT_THAT(said("undo"), HasSubstr("Gone again: 0000  since"));
  EXPECT_TRUE(history().fasts.empty());
}

TEST_F(Undo, isRefusedWhereThereIsNothingLeft) {
  const Ran ran = place.run("undo --database d");
  EXPECT_EQ(ran.status, 1);
  EXPECT_EQ(ran.errors, "mivo: There is nothing to undo.\n");
  EXPECT_FALSE(std::filesystem::exists(place.file("d")));
}

TEST_F(Undo, isRefusedWhereTheRecordsWereTouchedSince) {
  said("add '2026-02-27 20:00' '2026-02-28 12:00'");
  SQLite::Database{place.file("d").string(), SQLite::OPEN_READWRITE}.exec("UPDATE fasts SET note = 'mine'");
  const auto before = history();
  const Ran ran = place.run("undo --database d");
  EXPECT_EQ(ran.status, 1);
  EXPECT_THAT(ran.errors, HasSubstr("a record was changed meanwhile; nothing was changed"));
  EXPECT_EQ(history(), before);
}

}  // namespace
}  // namespace mivo::cli

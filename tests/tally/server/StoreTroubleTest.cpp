// SPDX-License-Identifier: MIT
#include <SQLiteCpp/SQLiteCpp.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/DamagedPage.h"
#include "tests/tally_support/Eventually.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/TallyServer.h"

// A database that others lock, write, move and fill while the server has it.
namespace mivo::tally::test {
namespace {

struct Fixture : testing::Test {
  tests::TemporaryFolder folder;
  std::string file = folder.file("tally.sqlite");
  std::string store = "sqlite:" + file;
};

using StoreTrouble = Fixture;

TEST_F(StoreTrouble, aLockOfAnotherStopsVotesOnlyAndOnlyWhileItLasts) {
  TallyServer server{store, {"--store-seconds", "1", "--probe-seconds", "1"}};
  HttpClient voter{server.port()};
  HttpClient reader{server.port()};
  EXPECT_EQ(countOf(voter.get("/add/a/feature1?delta=1")), 1);
  {
    SQLite::Database other{file, SQLite::OPEN_READWRITE};
    const SQLite::Transaction held{other, SQLite::TransactionBehavior::IMMEDIATE};
    voter.send("GET /add/a/feature1?delta=1 HTTP/1.1\r\nHost: localhost\r\n\r\n");
    EXPECT_EQ(countOf(reader.get("/get/a/featureThatNobodyReadYet")), 0);
    EXPECT_EQ(voter.receive().status, 503U);
    EXPECT_EQ(reader.get("/health").status, 503U);
  }
  EXPECT_TRUE(eventually([&] { return reader.get("/health").status == 200; }));  // nobody votes
  EXPECT_EQ(countOf(voter.get("/add/a/feature1?delta=1")), 2);
}

TEST_F(StoreTrouble, aCountThatAnotherWroteIsReadAgain) {
  TallyServer server{store};
  HttpClient client{server.port()};
  EXPECT_EQ(countOf(client.get("/add/a/feature1?delta=1")), 1);
  SQLite::Database{file, SQLite::OPEN_READWRITE}.exec("UPDATE counter SET value = 40");
  EXPECT_TRUE(eventually([&] { return countOf(client.get("/get/a/feature1")) == 40; }));
  EXPECT_EQ(countOf(client.get("/add/a/feature1?delta=1")), 41);
}

TEST_F(StoreTrouble, aDatabaseThatWasTakenAwayKeepsNoVote) {
  TallyServer server{store, {"--probe-seconds", "1"}};
  HttpClient client{server.port()};
  EXPECT_EQ(countOf(client.get("/add/a/feature1?delta=1")), 1);
  std::filesystem::rename(file, file + ".away");
  EXPECT_EQ(client.get("/add/a/feature1?delta=1").status, 503U);
  EXPECT_EQ(client.get("/health").status, 503U);
  server.process().waitForLine("was removed or replaced while it was open");
  std::filesystem::rename(file + ".away", file);
  EXPECT_TRUE(eventually([&] { return client.get("/health").status == 200; }));
  const auto log = file + "-wal";
  std::filesystem::rename(log, log + ".away");
  std::filesystem::copy_file(log + ".away", log);
  EXPECT_TRUE(eventually([&] { return client.get("/health").status == 503; })) << "nobody votes";
  EXPECT_EQ(client.get("/add/a/feature1?delta=1").status, 503U);
}

TEST_F(StoreTrouble, theSizeOfTheWriteAheadLogIsTold) {
  TallyServer server{store};
  HttpClient client{server.port()};
  client.get("/add/a/feature1?delta=1");
  const auto bytes = std::filesystem::file_size(file + "-wal");
  EXPECT_GT(bytes, 0U);
  EXPECT_THAT(client.get("/metrics").body,
              testing::HasSubstr("mivo_tally_store_write_ahead_log_bytes " + std::to_string(bytes) + '\n'));
}

// The log of the votes is larger than the file may be that the second server writes, so nothing can be added to it.
TEST_F(StoreTrouble, aFullDiskIsKnownBeforeTheFirstVote) {
  constexpr int votes = 20;
  {
    TallyServer first{store};
    HttpClient client{first.port()};
    for (int i = 0; i < votes; ++i) client.get("/add/a/feature1?delta=1");
  }  // killed
  TallyServer second{store, {}, {"sh", "-c", "trap '' XFSZ; ulimit -f 64; exec \"$@\"", "sh"}};  // 32 KB
  HttpClient client{second.port()};
  EXPECT_EQ(client.get("/health").status, 503U);
  EXPECT_EQ(countOf(client.get("/get/a/feature1")), votes);
}

// Root may write every file, unless it leaves that right behind.
TEST_F(StoreTrouble, aFileThatMayNotBeWrittenIsKnownBeforeTheFirstVote) {
  EXPECT_EQ((HttpClient{TallyServer{store}.port()}.get("/add/a/feature1?delta=1").status), 200U);
  std::filesystem::permissions(file, std::filesystem::perms::owner_read);
  TallyServer server{
      store,
      {},
      {"sh", "-c", R"sh([ "$(id -u)" = 0 ] && exec setpriv --bounding-set=-dac_override "$@"; exec "$@")sh", "sh"}};
  HttpClient client{server.port()};
  EXPECT_EQ(client.get("/health").status, 503U);
  EXPECT_EQ(client.get("/add/a/feature1?delta=1").status, 503U);
  EXPECT_EQ(countOf(client.get("/get/a/feature1")), 1);
  EXPECT_THAT(server.process().output(), testing::HasSubstr("votes cannot be kept: " + file));
}

TEST_F(StoreTrouble, aDamagedPageIsSaidAtTheStartAndTheRestIsServed) {
  constexpr int counters = 1000;
  {
    SQLite::Database database{file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE};
    database.exec("CREATE TABLE counter (name TEXT PRIMARY KEY, value INTEGER NOT NULL) STRICT, WITHOUT ROWID");
    database.exec("PRAGMA user_version = 1");
    SQLite::Statement insert{database, "INSERT INTO counter VALUES ('a/feature' || ?1, ?1)"};
    SQLite::Transaction together{database};
    for (int i = 0; i < counters; ++i) {
      insert.bind(1, 10'000 + i);
      insert.exec();
      insert.reset();
    }
    together.commit();
  }
  damagePageWith(file, "a/feature10999");
  TallyServer server{store};
  server.process().waitForLine(file + ": a part cannot be read, restore a backup: ");
  HttpClient client{server.port()};
  EXPECT_THAT(client.get("/metrics").body, testing::HasSubstr("mivo_tally_store_damaged 1\n"));
  EXPECT_EQ(client.get("/health").status, 200U);
  EXPECT_EQ(client.get("/get/a/feature10999").status, 503U);
  EXPECT_EQ(client.get("/add/a/feature10999?delta=1").status, 503U);
  EXPECT_EQ(countOf(client.get("/get/a/feature10000")), 10'000);
  EXPECT_EQ(countOf(client.get("/add/a/feature10000?delta=1")), 10'001);
}

}  // namespace
}  // namespace mivo::tally::test

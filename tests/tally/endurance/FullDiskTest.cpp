// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/Eventually.h"
#include "tests/tally_support/HttpClient.h"
#include "tests/tally_support/TallyServer.h"

namespace mivo::tally::test {
namespace {

// No file of the process may grow beyond so many bytes: to it the disk is full.
void limitFiles(const ChildProcess& process, rlim_t bytes) {
  rlimit limit{};
  ASSERT_EQ(::prlimit(process.id(), RLIMIT_FSIZE, nullptr, &limit), 0);
  limit.rlim_cur = bytes;
  ASSERT_EQ(::prlimit(process.id(), RLIMIT_FSIZE, &limit, nullptr), 0);
}

TEST(FullDisk, refusesVotesAndKeepsWhatWasThere) {
  const tests::TemporaryFolder folder;
  const auto store = "sqlite:" + folder.file("tally.sqlite");
  {
    TallyServer server{store, {"--probe-seconds", "1"}};
    HttpClient client{server.port()};
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(countOf(client.get("/add/a/feature1?delta=1")), i);

    limitFiles(server.process(), 1);
    for (int i = 0; i < 3; ++i) {
      const auto refused = client.get("/add/a/feature1?delta=1");
      EXPECT_EQ(refused.status, 503U) << refused.body;
      EXPECT_EQ(refused.headers.at("retry-after"), "5");
    }
    EXPECT_EQ(client.get("/health").status, 503U);
    EXPECT_EQ(countOf(client.get("/get/a/feature1")), 3);
    EXPECT_EQ(countOf(client.get("/get/a/featureThatNobodyReadYet")), 0);
    server.process().waitForLine("votes cannot be kept: ");

    limitFiles(server.process(), RLIM_INFINITY);
    EXPECT_EQ(countOf(client.get("/add/a/feature1?delta=1")), 4);
    EXPECT_EQ(client.get("/health").status, 200U);
    server.process().waitForLine("votes are kept again");
    limitFiles(server.process(), 1);
    EXPECT_TRUE(eventually([&] { return client.get("/health").status == 503; })) << "nobody votes";
    EXPECT_EQ(client.get("/add/a/feature1?delta=1").status, 503U);
    server.process().kill();
  }
  const TallyServer again{store};
  EXPECT_EQ(countOf(HttpClient{again.port()}.get("/get/a/feature1")), 4);
}

}  // namespace
}  // namespace mivo::tally::test

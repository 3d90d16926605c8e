// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <string>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/TallyServer.h"

namespace mivo::cli {
namespace {

using testing::HasSubstr;

struct Outcome {
  int status;
  std::string output;  ///< of both kinds
  bool operator==(const Outcome&) const = default;
};

/// The real programs: `mivo` against a `mivo-tally` of its own.
class EndToEnd : public testing::Test {
 protected:
  std::string address() const { return "http://127.0.0.1:" + std::to_string(server.port()); }

  Outcome mivo(const std::string& arguments) const { return run("", arguments + " --tally " + address()); }

  Outcome run(const std::string& environment, const std::string& arguments) const {
    const std::string command = "XDG_CONFIG_HOME=" + folder.file("settings") + " " + environment +
                                " " MIVO_PROGRAM " " + arguments + " --locale en 2>&1";
    FILE* const pipe = ::popen(command.c_str(), "r");
    std::string output;
    std::array<char, 4096> bytes;
    while (const std::size_t count = std::fread(bytes.data(), 1, bytes.size(), pipe))
      output.append(bytes.data(), count);
    return {WEXITSTATUS(::pclose(pipe)), output};
  }

  tests::TemporaryFolder folder;
  tally::test::TallyServer server{"sqlite:" + folder.file("votes.db")};
};

TEST_F(EndToEnd, aVoteChangesWhatASecondListingShows) {
  EXPECT_THAT(mivo("roadmap").output, HasSubstr("       0   Weekly plan (2, In progress)\n"));
  EXPECT_EQ(mivo("vote 2"), (Outcome{0, "Weekly plan: 1 vote\n"}));
  EXPECT_THAT(mivo("roadmap").output, HasSubstr("       1 * Weekly plan (2, In progress)\n"));
  EXPECT_EQ(mivo("unvote 2"), (Outcome{0, "Weekly plan: 0 votes\n"}));
  EXPECT_THAT(mivo("roadmap --format json").output, HasSubstr("\"votes\": 0"));
  EXPECT_EQ(run("MIVO_TALLY_URL=" + address(), "vote 2"), (Outcome{0, "Weekly plan: 1 vote\n"}));
}

TEST_F(EndToEnd, wrongUsageLeavesWith2) {
  EXPECT_EQ(mivo("vote").status, 2);
  EXPECT_EQ(mivo("vote nothing").status, 2);
  EXPECT_EQ(mivo("roadmap --format xml").status, 2);
}

}  // namespace
}  // namespace mivo::cli

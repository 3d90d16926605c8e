// SPDX-License-Identifier: MIT
// Every screen in every size and language, with every kind of history: no text cut off, none over another, none too
// faint, none outside its card.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "tests/support/TemporaryFolder.h"
#include "tests/tally_support/ChildProcess.h"
#include "tests/tally_support/TallyServer.h"

namespace mivo::app {
namespace {

using namespace tally::test;

class Gallery : public testing::TestWithParam<int> {};

TEST_P(Gallery, findsNoFault) {
  const tests::TemporaryFolder folder;
  const std::string store = "sqlite:" + folder.file("tally.sqlite"), counters = folder.file("counters.jsonl");
  std::ofstream{counters} << R"({"counter":"mivo/feature1","value":1284503})" << '\n'
                          << R"({"counter":"mivo/feature2","value":97})" << '\n';
  ASSERT_EQ((ChildProcess{{tallyProgram(), "import", counters, "--store", store}}.wait()), 0);
  const TallyServer server{store, {"--votes-per-minute", "0", "--roadmap", MIVO_DATA_FOLDER "/roadmap-mivo.json"}};
  const std::string gallery = "'" MIVO_GALLERY_PROGRAM "' --data '" MIVO_DATA_FOLDER "' --half ";
  EXPECT_EQ(
      std::system((gallery + std::to_string(GetParam()) + " --tally http://127.0.0.1:" + std::to_string(server.port()))
                      .c_str()),
      0);
}

INSTANTIATE_TEST_SUITE_P(Half, Gallery, testing::Values(1, 2), testing::PrintToStringParamName{});

}  // namespace
}  // namespace mivo::app

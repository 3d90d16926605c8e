// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

TEST(Status, isALineThatSaysWhatTheFastingPageSays) {
  const Workplace place;
  EXPECT_EQ(place.run("status").output, "Your first fast: Start it when you have eaten your last meal.\n");
  ASSERT_EQ(place.run("start --at \"$(date -u -d '-312 minutes' +%Y-%m-%dT%H:%M:%SZ)\"").status, 0);
  EXPECT_THAT(place.run("status").output, MatchesRegex("Fasting 5h 12m, Catabolic, 10h 4[78]m to your goal\n"));
  EXPECT_THAT(place.run("status --locale de-DE").output, StartsWith("Fasten 5 "));
  ASSERT_EQ(place.run("stop").status, 0);
  EXPECT_THAT(place.run("status").output, MatchesRegex("Eating, 0m since your last fast\n"));
}

TEST(Status, isTheComposedPageInJson) {
  const Workplace place;
  const Ran ran = place.run("status --format json");
  EXPECT_EQ(ran.status, 0) << ran.errors;
  EXPECT_THAT(ran.output, HasSubstr(R"("isRunning": false)"));
  EXPECT_THAT(ran.output, HasSubstr(R"("button": "Start fast")"));
  EXPECT_EQ(place.run("status --format xml").status, 2);
}

TEST(Status, standsOverTheUsageWithoutArguments) {
  const Workplace place;
  const Ran ran = place.run("");
  EXPECT_EQ(ran.status, 0) << ran.errors;
  EXPECT_THAT(ran.output, StartsWith("Your first fast: Start it when you have eaten your last meal.\n\nStatistics of"));
  EXPECT_THAT(ran.output, HasSubstr("Usage: mivo"));
  EXPECT_EQ(ran.errors, "");
}

}  // namespace
}  // namespace mivo::cli

// SPDX-License-Identifier: MIT
#include "adapters/zoneinfo/TimeZoneNames.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#include "adapters/time/TimeZone.h"
#include "adapters/zoneinfo/LoadTimeZone.h"

namespace mivo::adapters {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::Not;
using testing::StartsWith;

TEST(TimeZoneNames, listsZonesAndNothingElseOfTheDirectory) {
  const auto names = timeZoneNames();
  EXPECT_THAT(names, AllOf(Contains("Europe/Berlin"), Contains("UTC"), Contains("America/Argentina/Buenos_Aires")));
  EXPECT_THAT(names, AllOf(Not(Contains("tzdata.zi")), Not(Contains("localtime")), Each(Not(StartsWith("right/")))));
}

struct RefusedRow {
  const char *name, *zone, *advice;
};
void PrintTo(const RefusedRow& row, std::ostream* out) { *out << row.name; }
class RefusedZone : public testing::TestWithParam<RefusedRow> {};

TEST_P(RefusedZone, saysWhatWasExpected) {
  const auto zone = loadTimeZone(GetParam().zone);
  ASSERT_FALSE(zone);
  EXPECT_EQ(zone.error(), "unknown time zone \"" + std::string{GetParam().zone} + "\": " + GetParam().advice);
}

constexpr const char* nothingClose = "expected a name of the time-zone database, such as Europe/Berlin";

INSTANTIATE_TEST_SUITE_P(Rows, RefusedZone,
                         testing::Values(RefusedRow{"misspelt", "Europe/Berln", "did you mean Europe/Berlin?"},
                                         RefusedRow{"otherCase", "asia/tokyo", "did you mean Asia/Tokyo?"},
                                         RefusedRow{"cityAlone", "New York", "did you mean America/New_York?"},
                                         RefusedRow{"nothingLikeIt", "Mars/Crater", nothingClose},
                                         RefusedRow{"aRule", "CET-1CEST", nothingClose},
                                         RefusedRow{"anOffset", "UTC+1", nothingClose},
                                         RefusedRow{"empty", "", nothingClose}),
                         [](const auto& row) { return std::string{row.param.name}; });

TEST(TimeZoneNames, refusesPathsAndZonesThatCountLeapSeconds) {
  for (const char* name : {"/usr/share/zoneinfo/Europe/Berlin", "Europe/../Europe/Berlin", "right/Europe/Berlin",
                           "Europe", "tzdata.zi", "localtime"}) {
    EXPECT_FALSE(isTimeZoneName(name)) << name;
    EXPECT_FALSE(loadTimeZone(name)) << name;
  }
}

// What systemTimeZoneName() says while $TZ is set to `setting`.
std::string nameWith(const char* setting) {
  const char* before = std::getenv("TZ");
  const std::optional<std::string> kept = before ? std::optional<std::string>{before} : std::nullopt;
  setenv("TZ", setting, 1);
  const auto name = systemTimeZoneName();
  kept ? setenv("TZ", kept->c_str(), 1) : unsetenv("TZ");
  return name ? *name : name.error();
}

TEST(SystemTimeZone, isWhatTheEnvironmentNames) {
  EXPECT_EQ(nameWith("Australia/Lord_Howe"), "Australia/Lord_Howe");
  EXPECT_EQ(nameWith(":Europe/Berlin"), "Europe/Berlin");
  EXPECT_EQ(nameWith((timeZoneDirectory() / "Asia/Tokyo").c_str()), "Asia/Tokyo");
  EXPECT_EQ(nameWith(""), "UTC");
  EXPECT_EQ(nameWith("CET-1CEST"), "TZ: unknown time zone \"CET-1CEST\": " + std::string{nothingClose});
}

}  // namespace
}  // namespace mivo::adapters

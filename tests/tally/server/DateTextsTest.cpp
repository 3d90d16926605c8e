// SPDX-License-Identifier: MIT
#include "tally/server/DateTexts.h"

#include <gtest/gtest.h>

namespace mivo::tally {
namespace {

using std::chrono::milliseconds;

struct DateRow {
  const char* name;
  milliseconds sinceEpoch;
  const char* http;
  const char* log;
};

// One object for all rows: a text of the last second must not stay.
TEST(DateTextsTest, areOfTheInstant) {
  DateTexts sut;
  for (const auto& row :
       {DateRow{"epoch", milliseconds{0}, "Thu, 01 Jan 1970 00:00:00 GMT", "1970-01-01T00:00:00.000Z"},
        DateRow{"milliseconds", milliseconds{1'795'557'000'047}, "Tue, 24 Nov 2026 21:50:00 GMT",
                "2026-11-24T21:50:00.047Z"},
        DateRow{"sameSecond", milliseconds{1'795'557'000'912}, "Tue, 24 Nov 2026 21:50:00 GMT",
                "2026-11-24T21:50:00.912Z"},
        DateRow{"nextSecond", milliseconds{1'795'557'001'000}, "Tue, 24 Nov 2026 21:50:01 GMT",
                "2026-11-24T21:50:01.000Z"}}) {
    const DateTexts::Instant instant{row.sinceEpoch};
    EXPECT_EQ(sut.http(instant), row.http) << row.name;
    EXPECT_EQ(sut.log(instant), row.log) << row.name;
  }
}

}  // namespace
}  // namespace mivo::tally

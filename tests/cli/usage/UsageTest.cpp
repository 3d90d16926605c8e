// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

constexpr int wrongUsage = 2;

struct WrongRow {
  const char *name, *arguments, *errors;
};
void PrintTo(const WrongRow& row, std::ostream* out) { *out << row.name; }
class WrongUsage : public testing::TestWithParam<WrongRow> {};

TEST_P(WrongUsage, isOneSentenceThatHelps) {
  const Workplace place;
  const Ran ran = place.run(GetParam().arguments);
  EXPECT_EQ(ran.errors, "mivo: " + std::string{GetParam().errors} + '\n');
  EXPECT_EQ(ran.status, wrongUsage);
  EXPECT_EQ(ran.output, "");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WrongUsage,
    testing::Values(WrongRow{"misspelt", "lsit", "lsit: did you mean list?"},
                    WrongRow{"misspeltBeforeItsOptions", "stert --at '2026-02-28 20:04'", "stert: did you mean start?"},
                    WrongRow{"misspeltWithHelp", "lsit --help", "lsit: did you mean list?"},
                    WrongRow{"misspeltForHelp", "help lsit", "lsit: did you mean list?"},
                    WrongRow{"misspeltOfAnotherProgram", "rodmap", "rodmap: did you mean roadmap?"},
                    WrongRow{"misspeltInAGroup", "weight lsit", "weight lsit: did you mean weight list?"},
                    WrongRow{"unlikeAny", "fasting", "fasting: no such command (mivo --help tells what can)"},
                    WrongRow{"unlikeAnyInAGroup", "weight fasting",
                             "weight fasting: no such command (mivo weight --help tells what can)"},
                    WrongRow{"misspeltInACommandThatIsAGroup", "backup lsit", "backup lsit: did you mean backup list?"},
                    WrongRow{"behindAnOptionOfSuch", "backup --folder lsit restor",
                             "The following argument was not expected: restor (mivo backup --help tells what can)"},
                    WrongRow{"groupAlone", "weight",
                             "weight: expected one of add, list, remove (mivo weight --help tells what can)"},
                    WrongRow{"unknownOption", "--nope list", "--nope: no such option (mivo --help tells what can)"},
                    WrongRow{"optionOfACommand", "--locale=de-DE list",
                             "--locale: no such option (mivo --help tells what can)"},
                    WrongRow{"argumentTooMany", "list lsit",
                             "The following argument was not expected: lsit (mivo list --help tells what can)"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(Help, isTheSameByEitherName) {
  const Workplace place;
  for (const char* command : {"", "add", "weight", "weight add", "report", "vote", "roadmap"}) {
    const Ran asked = place.run("help " + std::string{command}), option = place.run(std::string{command} + " --help");
    EXPECT_EQ(asked.status, 0) << command << ": " << asked.errors;
    EXPECT_THAT(asked.output, testing::HasSubstr("Usage: mivo")) << command;
    EXPECT_EQ(asked.output, option.output) << command;
    EXPECT_EQ(asked.errors, "") << command;
  }
  EXPECT_FALSE(std::filesystem::exists(place.file("mivo")));
}

TEST(Help, saysHowToBegin) {
  const Ran ran = Workplace{}.run("");
  EXPECT_THAT(ran.output, testing::HasSubstr("mivo start begins a fast"));
  EXPECT_THAT(ran.output, testing::HasSubstr("mivo help COMMAND"));
}

}  // namespace
}  // namespace mivo::cli

// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>

#include "tests/cli_support/MivoProcess.h"

namespace mivo::cli {
namespace {

using testing::HasSubstr;
using Words = std::set<std::string>;

struct AskedRow {
  const char *name, *words, *offered;  // by bash; the last of the words is being typed
};
void PrintTo(const AskedRow& row, std::ostream* out) { *out << row.name; }
class BashOffers : public testing::TestWithParam<AskedRow> {};

// What bash does on a press of Tab, but for its compopt, which is told of: it works only there.
constexpr const char* pressTab = R"bash(. ./script
compopt() { COMPREPLY+=("compopt $*"); }
COMP_WORDS=("$program" "$@") COMP_CWORD=$#
typed=${!#}
"$(complete -p mivo | sed 's/complete -F \(.*\) mivo/\1/')" "$program" "${typed#=}" "${COMP_WORDS[COMP_CWORD - 1]}"
echo "${COMPREPLY[@]}"
)bash";

TEST_P(BashOffers, whatCanStandThere) {
  const Workplace place;
  place.write("tab", pressTab);
  const std::string words = GetParam().words;
  const Ran ran = place.run("completion bash",
                            ">script && program=" MIVO_PROGRAM " bash --norc tab " + words + " >output 2>>errors");
  EXPECT_EQ(ran.output, std::string{GetParam().offered} + '\n');
  EXPECT_EQ(ran.errors, "");
}

INSTANTIATE_TEST_SUITE_P(Rows, BashOffers,
                         testing::Values(AskedRow{"command", "re", "report remove repair"},
                                         AskedRow{"commandInAGroup", "weight ''", "add list remove"},
                                         AskedRow{"commandOfAnotherProgram", "doc", "doctor"},
                                         AskedRow{"commandForHelp", "help weight a", "add"},
                                         AskedRow{"commandForHelpOnce", "help list ''", ""},
                                         AskedRow{"option", "report --f", "--fasts --first-weekday --format"},
                                         AskedRow{"optionBehindArguments", "edit 3f9a --end 20 : 00 --no", "--note"},
                                         AskedRow{"optionOfAnotherProgram", "vote --na", "--namespace"},
                                         AskedRow{"optionThatHelpHides", "--man", ""},
                                         AskedRow{"value", "report --range ''", "week month year"},
                                         AskedRow{"valueThatBegan", "report --range m", "month"},
                                         AskedRow{"valueBehindEquals", "report --range =", "week month year"},
                                         AskedRow{"valueBehindEqualsThatBegan", "report --range = y", "year"},
                                         AskedRow{"valueInOneWord", "report --range=y", "--range=year"},
                                         AskedRow{"valueOfAnotherProgram", "roadmap --format ''", "text json"},
                                         AskedRow{"valueOfAPart", "export --to f.csv --what ''", "fasts weights"},
                                         AskedRow{"valueOfAnArgument", "completion ''", "bash zsh fish"},
                                         AskedRow{"anyText", "start --note ''", ""},
                                         AskedRow{"anyTextThatLooksLikeAnOption", "stop --at -9", ""},
                                         AskedRow{"file", "report --input ''", "compopt -o default"},
                                         AskedRow{"fileBehindEquals", "list --database = x", "compopt -o default"},
                                         AskedRow{"firstFileOfMany", "import ''", "compopt -o default"},
                                         AskedRow{"thirdFileOfMany", "import --dry-run a b c", "compopt -o default"},
                                         AskedRow{"fileBehindOptions", "import -- --x", "compopt -o default"},
                                         AskedRow{"nothingMore", "list ''", ""},
                                         AskedRow{"unknownOption", "list --nope=", ""}),
                         [](const auto& row) { return std::string{row.param.name}; });

Words completed(const Workplace& place, const std::string& words) {
  std::istringstream lines{place.run("--complete " + words).output};
  Words found;
  for (std::string line; std::getline(lines, line);) found.insert(line.substr(0, line.find('\t')));
  return found;
}

Words optionsInHelp(const std::string& help) {
  static const std::regex option{"\n  (?:-h,)?(--[a-z-]+)"};
  Words found;
  for (std::sregex_iterator match{help.begin(), help.end(), option}, none; match != none; ++match)
    found.insert((*match)[1]);
  return found;
}

std::string escaped(const std::string& option) { return "\\fB" + std::regex_replace(option, std::regex{"-"}, "\\-"); }

TEST(CommandLine, isTheSameInHelpInCompletionsAndInTheManualPage) {
  const Workplace place;
  const std::string page = place.run("--man-page").output;
  Words commands = completed(place, "''");
  EXPECT_EQ(commands.erase("weight"), 1U);
  for (const std::string& command : completed(place, "weight ''")) commands.insert("weight " + command);
  EXPECT_GT(commands.size(), 15U);
  for (const std::string& command : commands) {
    EXPECT_THAT(page, HasSubstr(".SS \\fBmivo " + command + "\\fR"));
    if (command == "help") continue;
    const std::string help = place.run(command + " --help").output;
    const Words options = optionsInHelp(help);
    EXPECT_GE(options.size(), 1U) << command;
    EXPECT_EQ(options, completed(place, command + " -")) << command;
    for (const std::string& option : options) EXPECT_THAT(page, HasSubstr(escaped(option) + "\\fR")) << command;
  }
}

TEST(Completion, hasNoOtherShells) {
  const Ran ran = Workplace{}.run("completion powershell");
  EXPECT_EQ(ran.status, 2);
  EXPECT_THAT(ran.errors, HasSubstr("powershell not in {bash,zsh,fish}"));
}

}  // namespace
}  // namespace mivo::cli

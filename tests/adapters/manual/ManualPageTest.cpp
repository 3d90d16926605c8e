// SPDX-License-Identifier: MIT
#include "adapters/manual/ManualPage.h"

#include <gtest/gtest.h>

#include <CLI/CLI.hpp>
#include <cstdlib>

namespace mivo::adapters {
namespace {

constexpr const char* expectedPage = R"(.TH CLOCK\-APP 1 "" "clock\-app 1.2" "User Commands"
.nh
.ad l
.SH NAME
clock\-app \- tells the time
.SH SYNOPSIS
\fBclock\-app\fR [\fIOPTIONS\fR] \fICOMMAND\fR
.SH DESCRIPTION
clock\-app: tells the time.
\&...and no more.
.PP
In it\(aqs own words.
.SH OPTIONS
.TP
\fB\-h\fR, \fB\-\-help\fR
Help
.TP
\fB\-\-store\fR \fIFILE\fR
A \(gaC:\eclock\(ga; default: \(ti/clock.db
.SH COMMANDS
.SS \fBclock\-app set\fR [\fIOPTIONS\fR] \fITIME\fR [\fIFILE\fR...]
Set it.
.TP
\fITIME\fR
What it is
.TP
\fIFILE\fR \fI{a,\:b}\fR
\&
.TP
\fB\-\-zone\fR \fI{utc,\:local}\fR
Where
.SS \fBclock\-app stop\fR [\fIOPTIONS\fR]
Stop it.
.SH EXAMPLES
.nf
  clock\-app set 12:00
.fi
.SH EXIT STATUS
.TP
\fBclock\-app set\fR, \fBclock\-app stop\fR
0 done, 1 not.
.SH ENVIRONMENT
.TP
\fBCLOCK_ZONE\fR
As \fB\-\-zone\fR, where that is not given.
.SH FILES
.TP
\fI\(ti/clock.db\fR
The \(hatime
)";

TEST(ManualPage, saysWhatHelpDoesAndNothingThatTroffTakesForItsOwn) {
  const char* const home = std::getenv("HOME");
  const std::string former = home ? home : "";
  ::setenv("HOME", "/home/somebody", 1);
  std::string text = "/home/somebody/clock.db";
  std::vector<std::string> files;
  CLI::App program{"clock-app: tells the time.\n...and no more.", "clock-app"};
  program.require_subcommand(1);
  program.footer("In it's own words.");
  program.set_help_flag("-h,--help", "Help");
  program.add_option("--store", text, "A `C:\\clock`")->type_name("FILE")->capture_default_str();
  program.add_flag("--secret")->group("");
  CLI::App& set = *program.add_subcommand("set", "Set it");
  set.add_option("TIME", text, "What it is")->required();
  set.add_option("FILE", files)->type_name("{a,b}");
  set.add_option("--zone", text, "Where")->type_name("{utc,local}")->envname("CLOCK_ZONE");
  program.add_subcommand("wind", "Wind it")->group("");
  for (CLI::App* command : {&set, program.add_subcommand("stop", "Stop it")})
    command->footer("Examples:\n  clock-app set 12:00\n\nExit status: 0 done, 1 not.\n");
  EXPECT_EQ(manualPage(program, {"1.2", {{"/home/somebody/clock.db", "The ^time"}}}), expectedPage);
  home ? ::setenv("HOME", former.c_str(), 1) : ::unsetenv("HOME");
}

}  // namespace
}  // namespace mivo::adapters

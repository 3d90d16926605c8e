// SPDX-License-Identifier: MIT
#include "cli/report/ReportOptions.h"

#include "cli/options/OptionValues.h"

namespace mivo::cli {
namespace {

constexpr const char* examples = R"(Examples:
  mivo report --input backup.json
  mivo export --to - | mivo report --input -
  mivo report --fasts fasts.csv --weights weights.csv --range month
  mivo report --input backup.json --now 2026-03-01T12:00:00Z --time-zone Europe/Berlin --format json

A snapshot is the app's own backup:
  {"version": 1,
   "fasts":   [{"start": "2026-02-28T20:04:00Z", "end": "2026-03-01T11:46:00Z", "goalSeconds": 57600}],
   "weights": [{"date": "2026-03-01T07:05:00Z", "weightInKg": 81.4}]}
An end of null is the fast that is still running. Tables have the columns start,end,goal_hours,note and
date,weight_kg, in any order, separated by comma, semicolon or tab.

Exit status: 0 done, 1 a file or the output was at fault, 2 the command line was.)";

}  // namespace

CLI::App& addReport(CLI::App& program, ReportOptions& options) {
  CLI::App& report = *program.add_subcommand("report", "Print every figure of a history of fasts and weights");
  report.footer(examples);
  report
      .add_option("--input", options.input,
                  "The history: a snapshot, or whatever mivo import reads; - for standard input")
      ->type_name("FILE");
  report.add_option("--database", options.database, "The history: a database of the app; default: the app's own")
      ->type_name("FILE");
  report.add_option("--fasts", options.fasts, "The fasts: a table; - for standard input")->type_name("FILE.csv");
  report.add_option("--weights", options.weights, "The weights: a table; - for standard input")->type_name("FILE.csv");
  report.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);  // over those of a shell's alias
  report.add_option("--range", options.range, "What to compare with the one before")
      ->type_name(typeName(namesOf(ranges)))
      ->capture_default_str();
  report.add_option("--now", options.now, "The instant to report for; default: the present")->type_name("DATE");
  report.add_option("--time-zone", options.timeZone, "Whose days to count: Europe/Berlin; default: the system's")
      ->type_name("ZONE");
  report.add_option("--calendar", options.calendar, "Whose weeks, months and years to count")
      ->type_name("ID")
      ->capture_default_str();
  report.add_option("--first-weekday", options.firstWeekday, "1 (Sunday) to 7 (Saturday); default: the locale's")
      ->type_name("DAY");
  report.add_option("--locale", options.locale, "The language and its forms: de-DE; default: the system's")
      ->type_name("TAG");
  report.add_option("--count", options.count, "What a streak counts")
      ->type_name(typeName(namesOf(countingEntities)))
      ->capture_default_str();
  report.add_flag("--ignore-goal", options.ignoreGoal, "Let fasts that missed their goal count for streaks");
  report.add_option("--max-break-hours", options.maxBreakHours, "How long a break ends a streak; default: 24")
      ->type_name("N");
  addWeightUnit(report, options.weightUnit, "For texts, and for tables that do not name theirs; default: the locale's");
  addDateOrder(report, options.dateOrder, "Of dates such as 1/2/2026 in --input; default: what the file shows");
  addFormat(report, options.format);
  return report;
}

}  // namespace mivo::cli

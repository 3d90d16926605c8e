// SPDX-License-Identifier: MIT
#include "app/program/Options.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <set>

#include "host/app/Screens.h"
#include "mivo/model/LowerCase.h"
#include "mivo/model/TimeRange.h"

namespace mivo::app {
namespace {

constexpr const char* examples =
    "Examples:\n"
    "  mivo-app\n"
    "  mivo-app --sample data/one-year.json --now 2026-03-01T12:00:00Z\n"
    "  mivo-app --print statistics.pdf --range month\n"
    "  mivo-app --render statistics.png --size 1280x800 --scale 2 --dark\n\n"
    "Exit status: 0 done, 1 the history or a file stood against it, 2 the command line did.";

void addRecords(CLI::App& program, Options& options) {
  auto* database = program.add_option("--database", options.database, "The history; default: your own");
  database->type_name("FILE");
  program.add_option("--sample", options.sample, "Shows a snapshot and keeps nothing of what is done to it")
      ->type_name("FILE.json")
      ->excludes(database);
  program.add_option("--locale", options.locale, "Language and region: de-DE; default: the system's")->type_name("TAG");
  program.add_option("--now", options.now, "The time at which the program starts: 2026-03-01T12:00:00Z")
      ->type_name("DATE");
  program.add_option("--time-zone", options.timeZone, "Default: the system's")->type_name("ZONE");
  program.add_option("--tally", options.tally, "The server of the roadmap and its votes")
      ->type_name("URL")
      ->envname("MIVO_TALLY_URL")
      ->capture_default_str();
  program.add_option("--donations", options.donations, "The list of ways to give")->type_name("URL|FILE");
  program.add_option("--feedback", options.feedback, "Where ideas are sent to")->type_name("ADDRESS");
  program.add_option("--namespace", options.namespaceName, "Under which votes are counted")
      ->type_name("NAME")
      ->capture_default_str();
}

std::set<std::string> screenNames() {
  std::set<std::string> names;
  for (const host::Screen screen : host::allScreens()) names.emplace(rawValue(screen));
  return names;
}

std::set<std::string> rangeNames() {
  std::set<std::string> names;
  for (const TimeRange range : allTimeRanges) names.emplace(rawValue(range));
  return names;
}

bool isPrintable(const std::string& file) {
  const std::string ending = lowerCase(std::filesystem::path{file}.extension().string());
  return ending == ".png" || ending == ".pdf";
}

void addLook(CLI::App& program, Options& options) {
  auto* picture = program.add_option("--render", options.picture, "Draws the window into a picture and ends");
  picture->type_name("FILE.png");
  program.add_option("--print", options.printed, "Draws the statistics for others into a picture, or onto pages of A4")
      ->type_name("FILE.png|FILE.pdf")
      ->check([](const std::string& file) {
        return isPrintable(file) ? "" : "expected a file whose name ends in .png or .pdf";
      })
      ->excludes(picture);
  program.add_flag("--with-weights", options.withWeights, "Prints the cards of weights too")->needs("--print");
  program.add_option("--range", options.range, "Of the statistics")->check(CLI::IsMember(rangeNames()));
  program.add_option("--size", options.size, "Of the window, in points; default: as it was last")->type_name("WxH");
  program.add_option("--scale", options.scale, "Pixels of the picture to a point")->check(CLI::Range(0.5, 4.0));
  program.add_flag("--whole", options.whole, "Draws the whole column, however high")->needs(picture);
  auto* dark = program.add_flag("--dark", options.dark, "In dark colours, whatever is chosen");
  program.add_flag("--light", options.light, "In light colours, whatever is chosen")->excludes(dark);
  program.add_flag("--mirrored", options.mirrored, "Lays out from right to left");
  program.add_option("--text-scale", options.textScale, "0.85 to 2")->check(CLI::Range(0.85, 2.0));
  program
      .add_option("--tab", options.tab, "What is shown first; default: the running fast, or else what was shown last")
      ->check(CLI::IsMember({"fasting", "statistics", "settings"}));
  program.add_option("--screen", options.screen, "What is open over it")->check(CLI::IsMember(screenNames()));
}

}  // namespace

Options asPrinted(Options options) {
  options.picture = options.printed;
  options.whole = true;
  options.tab = "statistics";
  if (options.size.empty()) options.size = "744x1052";  // of the shape of A4
  if (options.scale == 1) options.scale = 2;
  return options;
}

void addOptions(CLI::App& program, Options& options) {
  program.footer(examples);
  addRecords(program, options);
  addLook(program, options);
}

}  // namespace mivo::app

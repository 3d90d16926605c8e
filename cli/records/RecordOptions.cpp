// SPDX-License-Identifier: MIT
#include "cli/records/RecordOptions.h"

#include <CLI/CLI.hpp>

#include "cli/options/OptionValues.h"
#include "cli/records/RecordCommands.h"

namespace mivo::cli {
namespace {

constexpr const char* fastExamples = R"(Examples:
  mivo start
  mivo start --at "2h ago"
  mivo start --at "2026-02-28 20:04" --goal-hours 18
  mivo stop
  mivo add "yesterday 8 pm" 12:00 --note "no breakfast"
  mivo add --lines --dry-run < notes.txt
  mivo edit 3f9a --end 2026-02-28T12:30:00+01:00
  mivo remove 3f9a
  mivo repair --dry-run
  mivo undo
  mivo status
  mivo list
  mivo export --to backup.json
  mivo export --to fasts.csv --what fasts
  mivo export --to statistics.pdf --range month
  mivo import backup.json fasts.csv weights.csv

A date without an offset is in --time-zone; a time alone is the last one that has passed, and as an end the first one
after the start. What mivo prints can be typed. An ID is what mivo list shows, or more of it.

Exit status: 0 done and on disk, 1 the records or the database stood against it, 2 the command line did.)";

constexpr const char* weightExamples = R"(Examples:
  mivo weight add 81.4kg
  mivo weight add 179lb --at "2026-03-01 07:05"
  mivo weight add "12st 11lb"
  mivo weight list
  mivo weight remove 77c0)";

constexpr const char* backupExamples = R"(Examples:
  mivo backup
  mivo backup --folder /media/stick
  mivo backup list
  mivo backup restore
  mivo backup restore 2026-02-28
  mivo backup restore other-machine.json
  mivo backup folder
  mivo backup folder /media/stick
  mivo backup folder --usual

Before the first change of a day the app's own history is backed up into the folder beside it, or into one in the folder
that you choose; while that is missing, beside it again. The newest of each of 7 days, 4 weeks and 12 months stay. To
restore is a change as any other: what was there is backed up, and mivo undo takes it back. The settings of a backup
come with mivo import --with-settings FILE.)";

class Commands {
 public:
  Commands(CLI::App& program, RecordOptions& typed) : options{typed}, parent{&program} {}

  CLI::App& add(const char* name, const char* description, int (*run)(const RecordOptions&)) {
    CLI::App& command = group(*parent, name, description);
    command.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);  // over those of a shell's alias
    command.add_option("--database", options.database, "The history; default: the app's own")->type_name("FILE");
    command.add_option("--locale", options.locale, "The language and its forms: de-DE; default: the system's")
        ->type_name("TAG");
    command
        .add_option("--time-zone", options.timeZone, "Of dates without an offset: Europe/Berlin; default: the system's")
        ->type_name("ZONE");
    commands.push_back({&command, run});
    return command;
  }

  CLI::App& group(CLI::App& program, const char* name, const char* description) {
    CLI::App& command = *program.add_subcommand(name, description);
    command.footer(examples);
    return command;
  }

  void inside(CLI::App& group, const char* footer) {
    parent = &group;
    examples = footer;
  }
  void showing(const char* footer) { examples = footer; }

  void date(CLI::App& command, const char* name, std::optional<std::string>& text, const char* description) const {
    command.add_option(name, text, description)->type_name("DATE");
  }

  void goalAndNote(CLI::App& command, const char* goalDescription) const {
    command.add_option("--goal-hours", options.goalHours, goalDescription)->type_name("H");
    command.add_option("--note", options.note, "A note to keep with it")->type_name("TEXT");
  }

  void id(CLI::App& command) const {
    command.add_option("ID", options.id, "Its id, or as much of it as no other has")->required();
  }

  void format(CLI::App& command) const { addFormat(command, options.format); }

  RecordOptions& options;
  std::vector<RecordCommand> commands;

 private:
  CLI::App* parent;
  const char* examples = fastExamples;
};

constexpr const char* usualGoal = "How long it is meant to be; default: the app's setting";

void addFastCommands(Commands& to) {
  RecordOptions& options = to.options;
  CLI::App& start = to.add("start", "Start a fast", runStart);
  to.date(start, "--at", options.at, "When it began; default: now");
  to.goalAndNote(start, usualGoal);
  CLI::App& stop = to.add("stop", "Stop the fast that is running", runStop);
  to.date(stop, "--at", options.at, "When it ended; default: now");
  CLI::App& add = to.add("add", "Add a fast that has ended, or several", runAdd);
  CLI::Option* const lines =
      add.add_flag("--lines", options.takesLines,
                   "Those of standard input, one a line: \"yesterday 20:00 - 12:00\" or \"yesterday 20:00, 16h\"");
  add.add_option("START", options.start, "When it began; - alone is --lines")->excludes(lines);
  add.add_option("END", options.end, "When it ended")->excludes(lines);
  add.add_flag("--dry-run", options.isDryRun, "Only tell which of the lines would be added");
  to.goalAndNote(add, usualGoal);
  CLI::App& edit = to.add("edit", "Change a fast", runEdit);
  to.id(edit);
  to.date(edit, "--start", options.start, "When it began");
  CLI::Option* const running = edit.add_flag("--running", options.isRunning, "It has not ended after all");
  edit.add_option("--end", options.end, "When it ended")->type_name("DATE")->excludes(running);
  to.goalAndNote(edit, "How long it was meant to be");
  to.id(to.add("remove", "Remove a fast", runRemove));
  to.add("repair", "Make overlapping fasts stand one after another, and tell how", runRepair)
      .add_flag("--dry-run", options.isDryRun, "Only tell what would change");
  to.add("undo", "Take back the last change, also one of the app; once more does it again", runUndo);
  to.format(to.add("status", "Tell in a line which fast runs, and how far it has come", runStatus));
  to.format(to.add("list", "List the fasts, the latest last", runList));
  CLI::App& all = to.add("export", "Write fasts and weights into a file", runExport);
  all.add_option("--to", options.to,
                 "A snapshot (.json) or a table (.csv), as mivo import reads, or - for standard output; or the "
                 "statistics as a picture (.png) or pages (.pdf)")
      ->type_name("FILE")
      ->required();
  all.add_option("--what", options.what, "Only these; a table holds one of them")
      ->type_name(typeName(namesOf(exportedLists)));
  all.add_flag("--force", options.isForced, "Replace a file that is there already");
  all.add_flag("--with-weights", options.withWeights, "Weights too on a picture or pages, which hide them otherwise");
  all.add_option("--range", options.range, "Of the statistics on a picture or pages")
      ->type_name(typeName(namesOf(ranges)));
  CLI::App& import =
      to.add("import", "Add what files hold to the fasts and weights, whichever app wrote them", runImport);
  import.add_option("FILE", options.files, "Backups, tables or logs, known by their content; - for standard input")
      ->required()
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  import.add_flag("--dry-run", options.isDryRun, "Only tell what would be added");
  import.add_flag("--with-settings", options.takesSettings, "Choose the settings too that a snapshot carries");
  addWeightUnit(import, options.ambiguities.weightUnit, "Of weights without one");
  addDateOrder(import, options.ambiguities.dateOrder, "Of dates such as 1/2/2026; default: what the file shows");
}

void addWeightCommands(CLI::App& program, Commands& to) {
  CLI::App& weight = to.group(program, "weight", "Add, list and remove weights");
  weight.require_subcommand(1);
  weight.footer(weightExamples);
  to.inside(weight, weightExamples);
  CLI::App& add = to.add("add", "Add a weight", runWeightAdd);
  add.add_option("WEIGHT", to.options.weight,
                 "81.4kg, 179lb or \"12st 11lb\"; 81.4 alone where weights are shown in kg")
      ->required();
  to.date(add, "--at", to.options.at, "When it was weighed; default: now");
  to.format(to.add("list", "List the weights, the latest last", runWeightList));
  to.id(to.add("remove", "Remove a weight", runWeightRemove));
}

void addBackupCommands(Commands& to) {
  RecordOptions& options = to.options;
  to.showing(backupExamples);
  CLI::App& backup = to.add(
      "backup", "Back fasts and weights up, list the backups, go back to one and choose their folder", runBackup);
  backup.require_subcommand(0, 1);
  to.inside(backup, backupExamples);
  CLI::App& list = to.add("list", "List the backups, the newest first", runBackupList);
  to.format(list);
  CLI::App& restore = to.add("restore", "Put what a backup holds in the place of all there is", runBackupRestore);
  restore.add_option("BACKUP", options.which,
                     "The beginning of one that mivo backup list shows, or a file; default: the newest");
  for (CLI::App* command : {&backup, &list, &restore})
    command->add_option("--folder", options.folder, "Where backups are, this time; default: as mivo backup folder says")
        ->type_name("FOLDER");
  CLI::App& folder = to.add("folder", "Tell where backups go, or choose the folder for it", runBackupFolder);
  folder.excludes(backup.get_option("--folder"));
  CLI::Option* const usual = folder.add_flag("--usual", options.isUsualFolder, "Beside the history again");
  folder.add_option("FOLDER", options.newFolder, "Where their folder is to be, from now on")->excludes(usual);
}

}  // namespace

std::vector<RecordCommand> addRecordCommands(CLI::App& program, RecordOptions& options) {
  Commands commands{program, options};
  addFastCommands(commands);
  addBackupCommands(commands);
  addWeightCommands(program, commands);
  return commands.commands;
}

}  // namespace mivo::cli

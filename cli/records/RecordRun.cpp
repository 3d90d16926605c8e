// SPDX-License-Identifier: MIT
#include "cli/records/RecordRun.h"

#include <system_error>
#include <utility>

#include "adapters/locale/MessageCatalogue.h"
#include "adapters/standard/SystemClock.h"
#include "adapters/system/FileUserDefaults.h"
#include "adapters/system/UserDirectories.h"
#include "cli/backup/DamagedSentence.h"
#include "cli/options/OptionValues.h"
#include "cli/terminal/StandardOutput.h"
#include "cli/usage/Usage.h"
#include "host/app/CarriedSettings.h"
#include "host/app/Settings.h"
#include "host/dates/SpokenDate.h"
#include "host/disk/DailyBackup.h"
#include "host/disk/DatabaseFile.h"
#include "host/disk/FindBackupPlace.h"
#include "host/history/FieldRules.h"
#include "host/text/BadRecord.h"
#include "mivo/fasting/GoalTime.h"

namespace mivo::cli {
namespace {

template <class Value>
Value orRefused(Read<Value> read) {
  if (!read) throw Refused{wrongUsage, read.error()};
  return std::move(*read);
}

/// What a terminal adds to a refusal, and the exit status.
struct Help {
  const RecordRun& run;
  using Answer = std::pair<std::string, int>;

  Answer operator()(const host::FastIsRunning& refusal) const {
    return {"since " + run.typed(refusal.running.fast.start) + "; mivo stop ends it", atFault};
  }
  Answer operator()(const host::NoFastIsRunning&) const { return {"mivo start begins one", atFault}; }
  Answer operator()(const host::IsGone&) const { return {"", atFault}; }
  Answer operator()(const host::FastIsSavedAlready&) const { return {"", atFault}; }
  Answer operator()(const host::IsSavedAlready&) const { return {"", atFault}; }
  Answer operator()(const host::NothingToUndo&) const { return {"", atFault}; }

  Answer operator()(const host::IsNoRecord& refusal) const {
    using enum host::RecordFault;
    const std::string runs =
        refusal.running ? "the fast is running since " + run.typed(refusal.running->fast.start) : std::string{};
    switch (refusal.fault) {
      case startInFuture:
      case endInFuture:
      case dateInFuture:
        return {"it is " + run.typed(run.now) + (runs.empty() ? "" : "; ") + runs, atFault};
      case endBeforeStart:
        return {runs, atFault};
      case startOutOfRange:
      case endOutOfRange:
      case dateOutOfRange:
        return {std::string{host::expectedDate}, wrongUsage};
      case goalOutOfRange:
        return {"--goal-hours", wrongUsage};
      case noteTooLong:
        return {"--note: " + std::string{host::expectedNote}, wrongUsage};
      case weightOutOfRange:
        return {wrong("WEIGHT", host::expectedTypedWeight, run.options.weight).value(), wrongUsage};
    }
    return {"", atFault};
  }
};

/// What is said otherwise than the database says it: another program was quicker, or the file is damaged.
std::optional<std::string> sentenceFor(const host::DatabaseError& error, const RecordRun& run) {
  if (error.kind == host::DatabaseError::Kind::fastRunning) return refusalText(host::FastIsRunning{}, *run.texts);
  if (error.kind != host::DatabaseError::Kind::damaged) return std::nullopt;
  return damagedSentence(error, *run.texts, *run.formatters.dateFormatter);
}

}  // namespace

RecordRun::RecordRun(const RecordOptions& typedIn)
    : options{typedIn},
      locale{orRefused(readLocale(options.locale))},
      zone{orRefused(readTimeZone(options.timeZone))},
      formatters{adapters::makeFormatters(locale, *adapters::ZonedCalendar::gregorian(zone, locale.firstWeekday()))},
      texts{std::make_shared<adapters::MessageCatalogue>(locale.tag())},
      now{adapters::SystemClock{}.now()} {}

std::filesystem::path RecordRun::file() const {
  return options.database.empty() ? host::ownDatabaseFile() : std::filesystem::path{options.database};
}

bool RecordRun::isOwn() const { return file() == host::ownDatabaseFile(); }

HistoryFile RecordRun::open() const {
  if (!isOwn()) return HistoryFile{file()};
  return HistoryFile{file(), [this](const host::Database& database) { backUp(database); }};
}

void RecordRun::backUp(const host::Database& database) const {
  try {
    const auto place =
        backUpWhereDue(backupPlace(), [&] { return database.history(); }, [this] { return settings(); }, now);
    if (place) complain(backupFaultText(*place, *texts));
  } catch (const std::system_error& error) {
    complain(filledIn(texts->text("Today's backup could not be made: {1}"), {error.what()}));
  }
}

host::BackupPlace RecordRun::backupPlace() const {
  return host::backupPlace(file(), adapters::FileUserDefaults{adapters::appDefaultsFile()});
}

std::vector<host::Setting> RecordRun::settings() const {
  if (!isOwn()) return {};
  const adapters::FileUserDefaults app{adapters::appDefaultsFile()}, group{adapters::groupDefaultsFile()};
  return host::carriedSettings({app, group});
}

host::History RecordRun::history() const {
  if (std::filesystem::is_regular_file(file())) return host::openDatabase(file()).history();
  if (options.database.empty()) return {};
  throw Refused{atFault, host::describe({.file = file().string(), .reason = "expected a database of the app"})};
}

Date RecordRun::date(std::string_view name, const std::string& text, std::optional<Date> after) const {
  return orRefused(readTypedDate(name, text, locale, *zone, now, after));
}

Date RecordRun::dateOrNow(std::string_view name, const std::optional<std::string>& text) const {
  return text ? date(name, *text) : now;
}

std::int64_t RecordRun::goalSeconds(std::int64_t fallback) const {
  if (!options.goalHours) return fallback;
  const auto seconds = parseGoal(*options.goalHours);
  if (!seconds)
    throw Refused{
        wrongUsage,
        wrong("--goal-hours", "expected hours from 0 to 168, as in 16, 16.5 or 16:30", *options.goalHours).value()};
  return *seconds;
}

WeightUnit RecordRun::weightUnit() const {
  return host::weightUnit(adapters::FileUserDefaults{adapters::appDefaultsFile()}).value_or(locale.weightUnit());
}

std::string RecordRun::typed(Date date) const { return host::typedDate(date, *zone); }

host::HistoryChange RecordRun::change(host::Outcome outcome) const {
  if (outcome) return std::move(*outcome);
  refuse(outcome.error());
}

void RecordRun::refuse(const host::Refusal& refusal) const {
  const auto [help, status] = std::visit(Help{*this}, refusal);
  throw Refused{status, withHelp(refusalText(refusal, *texts), help)};
}

int runRecordCommand(const RecordOptions& options, const std::function<std::string(const RecordRun&)>& command) {
  try {
    const auto fault = writeOutput(command(RecordRun{options}));
    if (fault) complain(*fault);
    return fault ? atFault : 0;
  } catch (const Refused& refused) {
    complain(refused.what());
    return refused.status;
  } catch (const host::DatabaseError& error) {
    const auto sentence = sentenceFor(error, RecordRun{options});
    if (!sentence) throw;
    complain(*sentence);
    return atFault;
  }
}

std::size_t placeOf(const RecordRun& run, const ShortIDs& ids, std::string_view kind) {
  const std::string& typed = run.options.id;
  if (!canBeginID(typed))
    throw Refused{wrongUsage,
                  wrong("ID", "expected the beginning of an id, digits and the letters a to f", typed).value()};
  const auto found = ids.beginningWith(typed);
  if (found.size() == 1) return found.front();
  const std::string beginning = "an id that begins with \"" + host::quotable(typed) + '"';
  if (found.empty()) throw Refused{atFault, "no " + std::string{kind} + " has " + beginning};
  throw Refused{atFault, std::to_string(found.size()) + ' ' + std::string{kind} + "s have " + beginning +
                             ": expected more of it"};
}

}  // namespace mivo::cli

// SPDX-License-Identifier: MIT
#include "app/program/Environment.h"

#include <QtCore/QFile>

#include <cstdlib>
#include <random>
#include <system_error>
#include <utility>

#include "adapters/curl/CurlURLSession.h"
#include "adapters/icu/LanguageWords.h"
#include "adapters/icu/LocaleFormatters.h"
#include "adapters/icu/UserLocale.h"
#include "adapters/json/NlohmannDecoder.h"
#include "adapters/locale/MessageCatalogue.h"
#include "adapters/standard/LocalRandomNumberGenerator.h"
#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/standard/SystemClock.h"
#include "adapters/system/FileUserDefaults.h"
#include "adapters/system/StandardErrorReporter.h"
#include "adapters/system/ThreadPool.h"
#include "adapters/system/UserDirectories.h"
#include "adapters/time/ZonedCalendar.h"
#include "app/bridge/QtLinkOpener.h"
#include "app/program/OwnClock.h"
#include "app/program/PrintOutside.h"
#include "app/program/QtMainQueue.h"
#include "app/program/SystemZone.h"
#include "host/app/CarriedSettings.h"
#include "host/app/Settings.h"
#include "host/backup/BackedUpHistory.h"
#include "host/backup/DamagedText.h"
#include "host/database/DatabaseHistory.h"
#include "host/database/FaultText.h"
#include "host/disk/DailyBackup.h"
#include "host/disk/DatabaseFile.h"
#include "host/disk/FindBackupPlace.h"
#include "host/disk/TextFile.h"
#include "host/donations/DonationList.h"
#include "host/files/FilesOnDisk.h"
#include "host/history/Snapshot.h"
#include "host/options/PlaceOptions.h"

namespace mivo::app {
namespace {

namespace fs = std::filesystem;

using host::Read;

constexpr const char* folderVariable = "MIVO_SAMPLE_FOLDER";
constexpr std::string_view folderName = "mivo-sample-";

// What the command line says goes before what the user chose, and that before what the system is set to.
Read<adapters::UserLocale> userLocale(const std::string& asked, const UserDefaults& defaults) {
  if (!asked.empty()) return host::readLocale(asked);
  return adapters::UserLocale::system().inLanguage(host::language(defaults));
}

Read<Client<DateGenerator>> clock(const Options& options, const adapters::TimeZone& zone) {
  if (options.now.empty()) return std::make_shared<adapters::SystemClock>();
  const auto instant = host::readDate("--now", options.now, zone);
  if (!instant) return tl::unexpected{instant.error()};
  return std::make_shared<OwnClock>(*instant, !options.picture.empty());
}

bool isWrittenFromTheRight(const std::string& tag) {
  const std::string language = tag.substr(0, tag.find('-'));
  for (const char* one : {"ar", "fa", "he", "ur", "ps", "sd", "ug", "yi", "ckb", "dv"})
    if (language == one) return true;
  return false;
}

// Settings are written on any thread, and before there is a window that could say what failed.
void tell(const EventStream<std::string>& faults, const Dependencies& clients, std::string sentence) {
  clients.mainQueue->post([faults, sentence = std::move(sentence)] { faults.send(sentence); });
}

auto tellingOf(EventStream<std::string> faults, std::weak_ptr<const Dependencies> clients) {
  return [faults = std::move(faults), clients = std::move(clients)](const fs::path& file, const std::error_code& why) {
    const auto alive = clients.lock();
    if (!alive || !alive->texts) return;
    tell(faults, *alive,
         filledIn(alive->texts->text("Settings cannot be saved in {1}: {2}"), {file.string(), why.message()}));
  };
}

void addSystem(Dependencies& clients, const fs::path& settings,
               const adapters::FileUserDefaults::DidFailToWrite& didFailToWrite) {
  clients.uuid = std::make_shared<adapters::LocalUUIDGenerator>();
  clients.random = std::make_shared<adapters::LocalRandomNumberGenerator>();
  clients.userDefaults = std::make_shared<adapters::FileUserDefaults>(settings / "app.json", didFailToWrite);
  clients.appGroupUserDefaults = std::make_shared<adapters::FileUserDefaults>(settings / "group.json", didFailToWrite);
  clients.issueReporter = std::make_shared<adapters::StandardErrorReporter>();
  clients.jsonDecoder = std::make_shared<adapters::NlohmannDecoder>();
  clients.urlSession = std::make_shared<adapters::CurlURLSession>();
  clients.links = std::make_shared<QtLinkOpener>();
  clients.mainQueue = std::make_shared<QtMainQueue>();
}

// A task holds the dependencies, and these the threads: without this the last task would end beside a main that is
// gone.
std::shared_ptr<const TaskRunner> finishedWhenLetGo(const std::shared_ptr<adapters::ThreadPool>& threads) {
  return {threads.get(), [threads](const TaskRunner*) { threads->finish(); }};
}

// Made when they are first asked for.
auto wordsIn(adapters::UserLocale locale) {
  return [locale = std::move(locale), words = std::shared_ptr<const host::TypedDateWords>{}]() mutable {
    if (!words) words = std::make_shared<const host::TypedDateWords>(host::typedDateWords(adapters::dateWords(locale)));
    return words;
  };
}

Read<std::monostate> addPlaceAndTime(Environment& environment, Dependencies& clients, const Options& options) {
  const auto zone = host::readTimeZone(options.timeZone);
  if (!zone) return tl::unexpected{zone.error()};
  const auto locale = userLocale(options.locale, *clients.userDefaults);
  if (!locale) return tl::unexpected{locale.error()};
  const auto date = clock(options, **zone);
  if (!date) return tl::unexpected{date.error()};
  const auto calendar = adapters::ZonedCalendar::gregorian(*zone, locale->firstWeekday());
  environment.calendar = std::make_shared<host::WeekCalendar>(*calendar);
  environment.calendar->choose(host::firstWeekday(*clients.userDefaults));
  environment.usualWeightUnit = locale->weightUnit();
  environment.typedDateWords = wordsIn(*locale);
  clients.date = *date;
  clients.calendar = clients.currentCalendar = environment.calendar;
  clients.languageTag = locale->tag();
  clients.texts = std::make_shared<adapters::MessageCatalogue>(locale->tag());
  adapters::makeFormatters(*locale, *calendar).fill(clients);
  if (options.timeZone.empty()) {
    environment.systemZone = std::make_shared<SystemZone>(environment.calendar, *locale);
    environment.systemZone->fill(clients);
  }
  return std::monostate{};
}

std::string shippedRoadmap() {
  QFile file{QStringLiteral(":/Mivo/roadmap-mivo.json")};
  return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string{};
}

void addServers(Dependencies& clients, const Options& options) {
  const std::string server = options.tally.substr(0, options.tally.find_last_not_of('/') + 1);
  clients.servers = {.tally = server, .roadmap = server};
  clients.bundleIdentifier = options.namespaceName;
  clients.shippedRoadmap = shippedRoadmap();
  if (options.donations.empty()) return;
  clients.donations = std::make_shared<host::DonationList>(
      options.donations, host::DonationList::Tools{.session = clients.urlSession,
                                                   .decoder = clients.jsonDecoder,
                                                   .texts = clients.texts,
                                                   .languageTag = clients.languageTag});
}

Read<std::monostate> fill(const host::HistoryClient& database, const std::string& file, const UUIDGenerator& ids) {
  const auto text = host::readTextFile(file);
  if (!text) return tl::unexpected{describe(text.error())};
  auto history = host::readSnapshot(*text, file, ids);
  if (!history) return tl::unexpected{describe(history.error())};
  host::HistoryChange change;
  change.addedFasts = std::move(history->fasts);
  change.addedWeights = std::move(history->weights);
  database.apply(change);
  return std::monostate{};
}

fs::path databaseFile(const Environment& environment, const Options& options) {
  if (environment.sampleFolder) return environment.sampleFolder->path() / "mivo.sqlite";
  return options.database.empty() ? host::ownDatabaseFile() : fs::path{options.database};
}

// Where the file may not be written it can still be looked at.
host::Database openToRead(const fs::path& file, const host::DatabaseError& fault) {
  using Kind = host::DatabaseError::Kind;
  if (fault.kind != Kind::readOnly && fault.kind != Kind::unavailable) throw fault;
  try {
    return host::openDatabase(file, host::Database::Access::readOnly);
  } catch (const host::DatabaseError&) {
    throw fault;
  }
}

bool hasBackups(const host::DataFiles& files) {
  try {
    return !folderToRestore(files.backupPlace()).backups().empty();
  } catch (const std::system_error&) {
    return false;
  }
}

host::Database openSettingAside(const fs::path& file, const TextLookup& texts, std::string& notice) {
  auto [database, setAside] = host::openOrSetAside(file);
  if (setAside)
    notice = filledIn(texts.text("Your history was damaged and was put aside as {1}. A new one was begun."),
                      {setAside->string()});
  return std::move(database);
}

// A damaged one stays as it is where there are backups to go on from. Their folder may be slow to look at: only then.
host::Database open(const Environment& environment, std::string& notice) {
  const fs::path& file = environment.databaseFile;
  const TextLookup& texts = *environment.dependencies->texts;
  try {
    return host::openDatabase(file);
  } catch (const host::DatabaseError& fault) {
    if (fault.kind == host::DatabaseError::Kind::damaged) {
      if (hasBackups(*environment.files)) throw;
      return openSettingAside(file, texts, notice);
    }
    host::Database database = openToRead(file, fault);
    notice = filledIn(texts.text("You can look at your history, but nothing can be saved: {1} may not be written."),
                      {file.string()});
    return database;
  }
}

// The app's own settings go with its own history, and those of a sample with that.
bool carriesSettings(const Environment& environment) {
  return environment.sampleFolder || environment.databaseFile == host::ownDatabaseFile();
}

std::function<std::vector<host::Setting>()> settingsOf(const Environment& environment) {
  if (!carriesSettings(environment)) return [] { return std::vector<host::Setting>{}; };
  return [app = environment.dependencies->userDefaults, group = environment.dependencies->appGroupUserDefaults] {
    return host::carriedSettings({*app, *group});
  };
}

// Only what was typed: the program that prints reads the settings itself.
auto printOf(const Environment& environment, const Options& options) {
  std::vector<std::string> arguments{"--database", environment.databaseFile.string()};
  const auto add = [&arguments](const char* name, const std::string& value) {
    if (!value.empty()) arguments.insert(arguments.end(), {name, value});
  };
  add("--locale", options.locale);
  add("--time-zone", options.timeZone);
  add("--now", options.now);
  return [arguments](const fs::path& file, TimeRange range, host::PrintedWeights weights) {
    std::vector<std::string> all = arguments;
    all.insert(all.end(), {"--range", std::string{rawValue(range)}});
    if (weights == host::PrintedWeights::shown) all.emplace_back("--with-weights");
    printOutside(file, all);
  };
}

Client<host::DataFiles> filesAround(const Environment& environment, const Options& options) {
  return std::make_shared<host::FilesOnDisk>(
      host::FilesOnDisk::Place{.database = environment.databaseFile,
                               .zone = [calendar = environment.calendar] { return calendar->present().zone(); },
                               .settings = settingsOf(environment),
                               .ids = environment.dependencies->uuid,
                               .words = environment.typedDateWords,
                               .defaults = environment.dependencies->userDefaults,
                               .print = printOf(environment, options)});
}

// Only the app's own is backed up by itself, as on the command line.
Client<host::HistoryClient> clientOf(host::Database database, const Environment& environment) {
  auto history = std::make_shared<host::DatabaseHistory>(std::move(database));
  if (environment.sampleFolder || environment.databaseFile != host::ownDatabaseFile()) return history;
  return std::make_shared<host::BackedUpHistory>(
      std::move(history),
      host::dailyBackup(
          {.place = [files = environment.files] { return files->backupPlace(); },
           .history =
               [file = environment.databaseFile] {
                 return host::openDatabase(file, host::Database::Access::readOnly).history();
               },
           .settings = settingsOf(environment),
           .now = [date = environment.dependencies->date] { return date->now(); },
           .failed =
               [faults = environment.faults, clients = environment.dependencies](const std::exception& why) {
                 tell(faults, *clients,
                      filledIn(clients->texts->text("Today's backup could not be made: {1}"),
                               {host::faultText(why, *clients->texts)}));
               },
           .wentBesideTheDatabase =
               [faults = environment.faults, clients = environment.dependencies](const host::BackupPlace& place) {
                 tell(faults, *clients, backupFaultText(place, *clients->texts));
               }}));
}

// What stands against opening it.
std::string noticeOf(const host::DatabaseError& error, const Environment& environment) {
  const Dependencies& clients = *environment.dependencies;
  if (!environment.isDamaged) return host::faultText(error, *clients.texts);
  return damagedText(environment.databaseFile, folderToRestore(environment.files->backupPlace()), *clients.texts,
                     *clients.dateFormatter);
}

// Which of the backups can be read is seen only when it is.
std::optional<host::Backup> restoreNewestReadable(const host::DataFiles& files, Date now, fs::path& setAside) {
  for (host::Backup& backup : folderToRestore(files.backupPlace()).backups()) {
    const auto restored = files.restore(backup.file, now);
    if (!restored) continue;
    setAside = restored->setAside.value_or(fs::path{});
    return std::move(backup);
  }
  return std::nullopt;
}

}  // namespace

// The folder goes with the program, with all that is in it: only one that an earlier program made is taken over.
SampleFolder::SampleFolder() {
  const char* const left = std::getenv(folderVariable);
  const fs::path offered = left ? left : "";
  ::unsetenv(folderVariable);
  if (offered.parent_path() == fs::temp_directory_path() && offered.filename().string().starts_with(folderName)) {
    folder = offered;
    inherited = true;
    return;
  }
  std::string pattern = (fs::temp_directory_path() / folderName).string() + "XXXXXX";
  if (!::mkdtemp(pattern.data()))
    throw std::system_error{errno, std::generic_category(), "no folder for the sample in " + pattern};
  folder = pattern;
}

void SampleFolder::bequeath() {
  isKept = true;
  ::setenv(folderVariable, folder.c_str(), 1);
}

SampleFolder::~SampleFolder() {
  if (isKept) return;
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}

tl::expected<Environment, std::string> makeEnvironment(const Options& options) {
  try {
    Environment environment;
    if (!options.sample.empty()) environment.sampleFolder = std::make_unique<SampleFolder>();
    const auto clients = std::make_shared<Dependencies>();
    const auto threads = std::make_shared<adapters::ThreadPool>();
    clients->taskRunner = threads;
    environment.threads = finishedWhenLetGo(threads);
    addSystem(*clients,
              environment.sampleFolder ? environment.sampleFolder->path() : adapters::configurationDirectory(),
              tellingOf(environment.faults, clients));
    if (const auto added = addPlaceAndTime(environment, *clients, options); !added)
      return tl::unexpected{added.error()};
    addServers(*clients, options);
    environment.databaseFile = databaseFile(environment, options);
    environment.health =
        std::make_shared<host::LinkedHealthClient>(clients->userDefaults, carriesSettings(environment));
    clients->healthKitClient = environment.health;
    environment.tips = std::make_shared<const host::Tips>(clients->userDefaults);
    clients->tips = environment.tips;
    environment.rightToLeft = isWrittenFromTheRight(clients->languageTag);
    environment.dependencies = clients;
    const bool isOpen = openHistory(environment, options);
    if (isOpen && environment.sampleFolder && !environment.sampleFolder->isInherited())
      if (const auto filled = fill(*environment.history, options.sample, *clients->uuid); !filled)
        return tl::unexpected{filled.error()};
    return environment;
  } catch (const std::exception& error) {
    return tl::unexpected{std::string{error.what()}};
  }
}

bool openHistory(Environment& environment, const Options& options) {
  environment.notice.clear();
  environment.isDamaged = false;
  environment.files = filesAround(environment, options);
  try {
    environment.history = clientOf(open(environment, environment.notice), environment);
  } catch (const host::DatabaseError& error) {
    environment.isDamaged = error.kind == host::DatabaseError::Kind::damaged;
    environment.notice = noticeOf(error, environment);
  }
  return environment.history != nullptr;
}

bool restoreNewestBackup(Environment& environment, const Options& options) {
  const Dependencies& clients = *environment.dependencies;
  try {
    fs::path setAside;
    const auto backup = restoreNewestReadable(*environment.files, clients.date->now(), setAside);
    if (!backup) {
      environment.notice = clients.texts->text("None of the backups can be read.");
      return false;
    }
    if (!openHistory(environment, options)) return false;
    environment.notice =
        filledIn(clients.texts->text("The backup of {1} is restored. The damaged file is kept as {2}."),
                 {clients.dateFormatter->string(backup->date, "yMMMdjm").value_or(""), setAside.string()});
  } catch (const std::exception& error) {
    environment.notice = host::faultText(error, *clients.texts);
  }
  return environment.history != nullptr;
}

bool beginAnew(Environment& environment, const Options& options) {
  const TextLookup& texts = *environment.dependencies->texts;
  try {
    std::string notice;
    openSettingAside(environment.databaseFile, texts, notice);
    if (openHistory(environment, options)) environment.notice = std::move(notice);
  } catch (const host::DatabaseError& error) {
    environment.notice = host::faultText(error, texts);
  }
  return environment.history != nullptr;
}

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#include "web/worker/Environment.h"

#include <system_error>
#include <utility>

#include "adapters/json/NlohmannDecoder.h"
#include "adapters/standard/LocalRandomNumberGenerator.h"
#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/standard/SystemClock.h"
#include "host/app/CarriedSettings.h"
#include "host/app/Settings.h"
#include "host/backup/BackedUpHistory.h"
#include "host/backup/DamagedText.h"
#include "host/database/FaultText.h"
#include "host/health/LinkedHealthClient.h"
#include "mivo/weights/WeightUnits.h"
#include "web/adapters/CalendarTexts.h"
#include "web/adapters/ReadDateWords.h"
#include "web/adapters/StoredDatabase.h"
#include "web/adapters/StoredUserDefaults.h"
#include "web/locale/FieldReader.h"
#include "web/locale/ReadTimeZone.h"
#include "web/worker/ShippedRoadmap.h"

namespace mivo::web {
namespace {

constexpr const char* databaseFile = "mivo.sqlite";

// Made when they are first asked for.
auto typedDateWords() {
  return [words = std::shared_ptr<const host::TypedDateWords>{}]() mutable {
    if (!words) words = std::make_shared<const host::TypedDateWords>(host::typedDateWords(importedDateWords()));
    return words;
  };
}

void addSettings(Dependencies& clients, const EventStream<std::string>& faults, const Turns& turns) {
  const auto tellingOf = [&](const char* file) {
    return [faults, &turns, file, texts = clients.texts](const std::string& why) {
      turns.post([=] { faults.send(filledIn(texts->text("Settings cannot be saved in {1}: {2}"), {file, why})); });
    };
  };
  clients.userDefaults = std::make_shared<StoredUserDefaults>("app.json", tellingOf("app.json"));
  clients.appGroupUserDefaults = std::make_shared<StoredUserDefaults>("group.json", tellingOf("group.json"));
}

}  // namespace

tl::expected<Place, std::string> readPlace(std::string_view json) {
  const JSONValue given = adapters::NlohmannDecoder{}.decoded(json);
  if (!given.object()) return tl::unexpected{std::string{"expected an object"}};
  Place place;
  tl::expected<std::shared_ptr<const adapters::TimeZone>, std::string> zone;
  FieldReader fields{given, ""};
  fields.read("timeZone", "expected an object",
              [&](const JSONValue& value) { return zone = readTimeZone(value, "timeZone"), true; });
  fields.whole("firstWeekday", "expected 1 (Sunday) to 7 (Saturday)", 1, 7,
               [&](std::int64_t day) { place.firstWeekday = static_cast<int>(day); });
  fields.text("weightUnit", "expected kg, lb or st", [&](std::string_view text) {
    const auto unit = weightUnitNamed(text);
    if (unit) place.usualWeightUnit = *unit;
    return unit.has_value();
  });
  fields.text("server", "expected an address", [&](std::string_view text) { return place.server = text, true; });
  if (std::string wrong = fields.sentence(); !wrong.empty()) return tl::unexpected{std::move(wrong)};
  if (!zone) return tl::unexpected{std::move(zone.error())};
  if (!*zone) return tl::unexpected{std::string{"timeZone: expected an object"}};
  place.zone = *zone;
  return place;
}

Environment::Environment(const Place& place, const std::string& languageTag)
    : turns{std::make_shared<Turns>()}, session{std::make_shared<FetchSession>()} {
  const auto clients = std::make_shared<Dependencies>();
  calendar = std::make_shared<host::WeekCalendar>(*adapters::ZonedCalendar::gregorian(place.zone, place.firstWeekday));
  fillTexts(*clients, calendar);
  clients->languageTag = languageTag;
  clients->calendar = clients->currentCalendar = calendar;
  clients->date = std::make_shared<adapters::SystemClock>();
  clients->uuid = std::make_shared<adapters::LocalUUIDGenerator>();
  clients->random = std::make_shared<adapters::LocalRandomNumberGenerator>();
  clients->jsonDecoder = std::make_shared<adapters::NlohmannDecoder>();
  clients->urlSession = session;
  clients->mainQueue = turns;
  clients->taskRunner = turns;
  clients->servers = {.tally = place.server, .roadmap = place.server};
  clients->bundleIdentifier = "mivo";
  clients->shippedRoadmap = shippedRoadmap;
  addSettings(*clients, faults, *turns);
  calendar->choose(host::firstWeekday(*clients->userDefaults));
  const auto health = std::make_shared<host::LinkedHealthClient>(clients->userDefaults, /*isOffered=*/false);
  clients->healthKitClient = health;
  const auto tips = std::make_shared<const host::Tips>(clients->userDefaults);
  clients->tips = tips;
  dependencies = clients;
  services = {.dependencies = clients,
              .history = {},
              .health = health,
              .tips = tips,
              .calendar = calendar,
              .usualWeightUnit = place.usualWeightUnit,
              .about = {.version = MIVO_VERSION, .databaseFile = databaseFile, .exportCommand = {}},
              .libraries = {{"Preact", "MIT"}}};
}

tl::expected<void, std::string> Environment::open(Opening how) {
  notice.clear();
  isDamaged = false;
  files = std::make_shared<BrowserFiles>(BrowserFiles::Place{
      .database = databaseFile,
      .zone = [kept = calendar] { return kept->present().zone(); },
      .settings =
          [clients = dependencies] {
            return host::carriedSettings({*clients->userDefaults, *clients->appGroupUserDefaults});
          },
      .ids = dependencies->uuid,
      .words = typedDateWords(),
      .replace = [this](const auto& all, const auto& before) { return records->replace(all, before); }});
  try {
    openOrThrow(how);
  } catch (const std::exception& error) {
    return tl::unexpected{
        isDamaged ? damagedText(databaseFile, files->backupList(), *dependencies->texts, *dependencies->dateFormatter)
                  : host::faultText(error, *dependencies->texts)};
  }
  services.files = files;
  services.history = std::make_shared<host::BackedUpHistory>(records, [this] { backUp(); });
  return {};
}

// A damaged one stays as it is where there are backups to go on from.
void Environment::openOrThrow(Opening how) {
  try {
    return take(databaseFile);
  } catch (const host::DatabaseError& error) {
    if (error.kind != host::DatabaseError::Kind::damaged) throw;
    isDamaged = how == Opening::asItIs && !files->backupList().backups().empty();
    if (isDamaged) throw;
  }
  how == Opening::fromNewestBackup ? openFromNewestBackup() : openSettingAside();
}

void Environment::openSettingAside() {
  const std::string aside = copyAside(databaseFile);
  removeDatabase(databaseFile);
  take(databaseFile);
  notice = filledIn(
      dependencies->texts->text("Your history was damaged and was put aside as {1}. A new one was begun."), {aside});
}

void Environment::openFromNewestBackup() {
  const auto stored = storedBackups(dependencies->uuid);
  for (const host::Backup& backup : files->backupList().backups()) {
    const auto read = stored->read(backup.file);
    if (!read) continue;
    const std::string aside = copyAside(databaseFile);
    replaceDatabase(databaseFile, *read);
    take(databaseFile);
    notice = filledIn(dependencies->texts->text("The backup of {1} is restored. The damaged file is kept as {2}."),
                      {dependencies->dateFormatter->string(backup.date, "yMMMdjm").value_or(""), aside});
    return;
  }
  throw std::runtime_error{dependencies->texts->text("None of the backups can be read.")};
}

void Environment::take(const std::string& file) {
  StoredDatabase opened = openStored(file);
  connection = opened.connection;
  records = std::make_shared<const host::DatabaseHistory>(std::move(opened.database));
}

void Environment::backUp() const {
  try {
    files->backUpWhereDue([this] { return records->load(); }, dependencies->date->now());
  } catch (const std::exception& error) {
    tell(filledIn(dependencies->texts->text("Today's backup could not be made: {1}"),
                  {host::faultText(error, *dependencies->texts)}));
  }
}

void Environment::tell(std::string sentence) const {
  turns->post([told = faults, sentence = std::move(sentence)] { told.send(sentence); });
}

}  // namespace mivo::web

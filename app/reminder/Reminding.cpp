// SPDX-License-Identifier: MIT
#include "app/reminder/Reminding.h"

#include <iostream>
#include <utility>

#include "adapters/icu/LocaleFormatters.h"
#include "adapters/icu/UserLocale.h"
#include "adapters/locale/MessageCatalogue.h"
#include "adapters/standard/SystemClock.h"
#include "adapters/system/UserDirectories.h"
#include "adapters/time/ZonedCalendar.h"
#include "host/app/Settings.h"
#include "host/disk/DatabaseFile.h"
#include "host/options/PlaceOptions.h"

namespace mivo::app {
namespace {

namespace fs = std::filesystem;

constexpr Duration untilTriedAgain{5 * 60};

// In the language, the zone and the clock of this moment: all of them may be others than when the program started.
host::ReminderText textOf(const host::Reminder& reminder, const UserDefaults& defaults, Date now) {
  const auto locale = adapters::UserLocale::system().inLanguage(host::language(defaults));
  const auto zone = host::readTimeZone("");
  if (!zone) throw std::runtime_error{zone.error()};
  const auto calendar = adapters::ZonedCalendar::gregorian(*zone, locale.firstWeekday());
  const auto formatters = adapters::makeFormatters(locale, *calendar);
  const adapters::MessageCatalogue texts{locale.tag()};
  return host::reminderText(reminder, formatters.pageClients(*calendar, texts, now));
}

}  // namespace

Reminding::Reminding(fs::path file)
    : database{std::move(file)},
      defaults{adapters::appDefaultsFile()},
      files{{database, database.string() + "-wal", adapters::appDefaultsFile()}} {
  connect(&files, &FileWatch::changed, this, &Reminding::look);
  connect(&alarm, &WallClockAlarm::rang, this, &Reminding::look);
  connect(&notifications, &Notifications::cameUp, this, &Reminding::look);
  connect(&notifications, &Notifications::handedOver, this, &Reminding::done);
}

void Reminding::look() {
  const host::ReminderSettings settings = host::reminderSettings(defaults);
  if (!settings.isAny()) return Q_EMIT done();
  const Date now = adapters::SystemClock{}.now();
  const auto records = history();
  const auto next =
      records ? host::nextReminder(records->fasts, settings, host::toldFasts(defaults), now) : std::nullopt;
  const bool isDue = next && next->due <= now;
  if (!records || (isDue && !tell(*next))) return alarm.setTo(now + untilTriedAgain);
  alarm.setTo(next && !isDue ? std::optional{next->due} : std::nullopt);
}

// Read as it stands: nothing is made, brought up to date or kept open for it.
std::optional<host::History> Reminding::history() {
  try {
    if (!fs::exists(database)) return host::History{};
    return host::openDatabase(database, host::Database::Access::readOnly).history();
  } catch (const std::exception& error) {
    complain(error.what());
    return std::nullopt;
  }
}

// Once the desktop has taken it, not before: what nobody showed is still to be told.
bool Reminding::tell(const host::Reminder& reminder) {
  std::optional<std::string> fault;
  try {
    fault = notifications.show(textOf(reminder, defaults, adapters::SystemClock{}.now()));
  } catch (const std::exception& error) {  // a zone that the system does not know
    fault = error.what();
  }
  if (fault) complain("a notification could not be shown, and will be tried again: " + *fault);
  if (!fault) host::setToldFast(defaults, reminder.kind, reminder.fast);
  return !fault;
}

void Reminding::complain(const std::string& sentence) {
  if (complaints.insert(sentence).second) std::cerr << "mivo-reminder: " << sentence << std::endl;
}

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <typeinfo>

#include "mivo/platform/Calendar.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/DateGenerator.h"
#include "mivo/platform/DependencyContext.h"
#include "mivo/platform/DonationClient.h"
#include "mivo/platform/Formatters.h"
#include "mivo/platform/HealthKitClient.h"
#include "mivo/platform/IssueReporting.h"
#include "mivo/platform/JSONValue.h"
#include "mivo/platform/LinkOpener.h"
#include "mivo/platform/LogOutput.h"
#include "mivo/platform/MainQueue.h"
#include "mivo/platform/RandomNumberGenerator.h"
#include "mivo/platform/ServerAddresses.h"
#include "mivo/platform/TaskRunner.h"
#include "mivo/platform/TextLookup.h"
#include "mivo/platform/TipCatalogue.h"
#include "mivo/platform/URLSession.h"
#include "mivo/platform/UUIDGenerator.h"
#include "mivo/platform/UserDefaults.h"

namespace mivo {

/// Everything that the module asks of its surroundings. A host fills in what its features use; asking for a client that
/// is not there stops the program with a sentence that names it.
struct Dependencies {
  Client<DateGenerator> date;
  Client<UUIDGenerator> uuid;
  Client<Calendar> calendar;         ///< ranges, periods, and streak days where it is Gregorian
  Client<Calendar> currentCalendar;  ///< the process's own: streak deadlines
  Client<DurationFormatter> hourMinDurationUnitFormatter, hourDurationUnitFormatter;
  Client<DateFormatter> dateFormatter;
  Client<DateIntervalFormatter> dateIntervalFormatter;
  Client<MassFormatter> massFormatter;
  Client<NumberFormatter> numberFormatter;
  Client<TextLookup> texts;
  Client<UserDefaults> appGroupUserDefaults;  ///< shared with the app's extensions
  Client<UserDefaults> userDefaults;          ///< the app's own
  Client<HealthKitClient> healthKitClient;
  Client<TipCatalogue> tips;
  Client<URLSession> urlSession;
  Client<DonationClient> donations;  ///< may stay empty: the donation screen then says what helps instead
  Client<LinkOpener> links;          ///< may stay empty: nothing opens
  Client<JSONDecoder> jsonDecoder;
  Client<RandomNumberGenerator> random;
  Client<MainQueue> mainQueue;
  Client<TaskRunner> taskRunner;
  Client<IssueReporter> issueReporter;
  Client<LogOutput> log;  ///< may stay empty: standard output
  ServerAddresses servers;
  std::string shippedRoadmap;      ///< a roadmap file that came with the app, for when no server answers; may be empty
  std::string bundleIdentifier;    ///< names the app among others; without one there are no votes
  std::string languageTag = "en";  ///< of texts that a file has in several languages: "de", "pt-BR"
  int platformVersion = 17;        ///< 17 and later: tips, and charts that scroll under a header
};

/// The dependencies in force on this thread; stops the program with a sentence where none were set.
const Dependencies& currentDependencies();

/// One client of the current dependencies:
///
///     const auto calendar = dependency(&Dependencies::calendar);
///
/// Stops the program where it was not filled in.
template <class Service>
const Client<Service>& dependency(Client<Service> Dependencies::* client);

[[noreturn]] void stopForMissingDependency(const char* type);

template <class Service>
const Client<Service>& dependency(Client<Service> Dependencies::* client) {
  const Client<Service>& value = currentDependencies().*client;
  if (!value) stopForMissingDependency(typeid(Service).name());
  return value;
}

}  // namespace mivo

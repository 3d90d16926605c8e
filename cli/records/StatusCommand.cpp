// SPDX-License-Identifier: MIT
#include "adapters/system/FileUserDefaults.h"
#include "adapters/system/UserDirectories.h"
#include "adapters/time/ZonedCalendar.h"
#include "cli/options/OptionValues.h"
#include "cli/records/RecordCommands.h"
#include "cli/records/RecordRun.h"
#include "cli/usage/Usage.h"
#include "host/app/Settings.h"
#include "host/json/RecordJson.h"
#include "host/pages/FastingPage.h"

namespace mivo::cli {
namespace {

host::FastingPage page(const RecordRun& run) {
  const auto calendar = adapters::ZonedCalendar::gregorian(run.zone, run.locale.firstWeekday());
  const auto goalSeconds = host::goalSeconds(adapters::FileUserDefaults{adapters::appDefaultsFile()});
  return host::composeFastingPage(host::fastingPageFacts(run.history().fasts, goalSeconds, run.now),
                                  run.formatters.pageClients(*calendar, *run.texts, run.now));
}

std::string status(const RecordRun& run) {
  const auto asJson = readFormat(run.options.format);
  if (!asJson) throw Refused{wrongUsage, asJson.error()};
  if (!*asJson) return page(run).status + '\n';
  host::JsonWriter json;
  host::writeJson(json, page(run));
  return std::move(json).text();
}

}  // namespace

int runStatus(const RecordOptions& options) { return runRecordCommand(options, status); }

}  // namespace mivo::cli

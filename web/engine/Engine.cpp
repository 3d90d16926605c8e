// SPDX-License-Identifier: MIT
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "adapters/texts/LocaleFormatters.h"
#include "host/history/Snapshot.h"
#include "host/report/ReportJson.h"
#include "web/engine/ReadOptions.h"
#include "web/exchange/Exchange.h"
#include "web/locale/ImportedTexts.h"

// What JavaScript calls.

namespace mivo::web {
namespace {

std::shared_ptr<const Dependencies> clientsOf(const EngineOptions& options) {
  auto clients = std::make_shared<Dependencies>();
  fillReportClients(*clients, options.report);
  clients->texts = importedTextLookup();
  adapters::makeFormatters(importedQuantityTexts(), importedDateTexts(), *options.calendar).fill(*clients);
  return clients;
}

Made report(std::string_view snapshot, std::string_view optionsJson) {
  const auto options = readOptions(optionsJson);
  if (!options) return tl::unexpected{options.error()};
  const auto clients = clientsOf(*options);
  const DependencyScope scope{clients};
  const auto history = host::readSnapshot(snapshot, "snapshot", *clients->uuid);
  if (!history) return tl::unexpected{describe(history.error())};
  const host::Report made = makeReport(*history, options->report);
  return reportJson(made, trends(made), screen(made, options->report, {}));
}

}  // namespace
}  // namespace mivo::web

extern "C" {

/// What `mivo report --format json` prints of a snapshot.
[[clang::export_name("report")]] const void* mivoReport(const char* snapshot, std::size_t snapshotSize,
                                                        const char* options, std::size_t optionsSize) {
  return mivo::web::answerOf([&] { return mivo::web::report({snapshot, snapshotSize}, {options, optionsSize}); });
}
}

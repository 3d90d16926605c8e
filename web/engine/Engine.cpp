// SPDX-License-Identifier: MIT
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "adapters/texts/LocaleFormatters.h"
#include "host/history/Snapshot.h"
#include "host/report/ReportJson.h"
#include "web/engine/ImportedTexts.h"
#include "web/engine/ReadOptions.h"

// What JavaScript calls. Texts are UTF-8, given as an address and a size.

namespace mivo::web {
namespace {

/// JavaScript reads it where it lies: `engine.mjs`.
struct Answer {
  const char* text;
  std::size_t size;
  bool isRefused;  ///< the text is a sentence that says why
};

using Made = tl::expected<std::string, std::string>;

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

/// The answer lives until the next one is asked for.
const Answer* answer(Made made) {
  static std::string kept;
  static Answer given;
  kept = made ? std::move(*made) : std::move(made.error());
  given = {kept.data(), kept.size(), !made.has_value()};
  return &given;
}

}  // namespace
}  // namespace mivo::web

extern "C" {

[[clang::export_name("allocate")]] void* mivoAllocate(std::size_t size) { return std::malloc(size); }
[[clang::export_name("release")]] void mivoRelease(void* memory) { std::free(memory); }

/// Makes room for a text that an import gives.
[[clang::export_name("room")]] char* mivoRoom(std::string* text, std::size_t size) {
  text->resize(size);
  return text->data();
}

/// What `mivo report --format json` prints of a snapshot.
[[clang::export_name("report")]] const void* mivoReport(const char* snapshot, std::size_t snapshotSize,
                                                        const char* options, std::size_t optionsSize) {
  try {
    return mivo::web::answer(mivo::web::report({snapshot, snapshotSize}, {options, optionsSize}));
  } catch (const std::exception& error) {
    return mivo::web::answer(tl::unexpected{std::string{error.what()}});
  }
}
}

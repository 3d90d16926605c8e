// SPDX-License-Identifier: MIT
#include "host/pages/ExportSheet.h"

#include <array>
#include <utility>

#include "host/dates/DateText.h"

namespace mivo::host {
namespace {

constexpr std::array parts{ExportedPart::everything, ExportedPart::fasts, ExportedPart::weights, ExportedPart::pages,
                           ExportedPart::picture};

/// "2026-03-01": in UTC as backups are, whatever the language, so that files sort by it.
std::string day(Date date) { return rfc3339(date).substr(0, 10); }

ExportRow rowOf(ExportedPart part, const PageClients& clients) {
  const TextLookup& texts = clients.texts;
  switch (part) {
    case ExportedPart::everything:
      return {.title = texts.text("Everything"),
              .note = texts.text("Fasts, weights and settings, for Mivo to read again"),
              .fileName = "mivo",
              .ending = "json",
              .filter = texts.text("Backup")};
    case ExportedPart::fasts:
      return {.title = texts.text("Fasts"),
              .note = texts.text("A table for spreadsheets and other apps"),
              .fileName = "mivo-fasts",
              .ending = "csv",
              .filter = texts.text("Table")};
    case ExportedPart::weights:
      return {.title = texts.text("Weights"),
              .note = texts.text("A table for spreadsheets and other apps"),
              .fileName = "mivo-weights",
              .ending = "csv",
              .filter = texts.text("Table")};
    case ExportedPart::pages:
      return {.title = texts.text("Statistics on pages"),
              .note = texts.text("To print, or to take along to a conversation"),
              .fileName = "mivo-statistics",
              .ending = "pdf",
              .filter = texts.text("Document")};
    case ExportedPart::picture:
      return {.title = texts.text("Statistics as a picture"),
              .note = texts.text("To show to others"),
              .fileName = "mivo-statistics",
              .ending = "png",
              .filter = texts.text("Picture")};
  }
  return {};
}

}  // namespace

ExportedPart exportedPartAt(std::size_t row) { return parts.at(row); }

ExportSheet composeExportSheet(bool printsWeights, const PageClients& clients) {
  ExportSheet sheet{.title = clients.texts.text("Export"),
                    .text = clients.texts.text("Backups and tables can be imported again."),
                    .rows = {},
                    .weightsLabel = clients.texts.text("Weights on pages and picture"),
                    .printsWeights = printsWeights};
  for (const ExportedPart part : parts) {
    ExportRow row = rowOf(part, clients);
    row.fileName += '-' + day(clients.now) + '.' + row.ending;
    row.filter += " (*." + row.ending + ')';
    sheet.rows.push_back(std::move(row));
  }
  return sheet;
}

}  // namespace mivo::host

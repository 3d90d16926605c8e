// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/app/AppFeature.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// One of the files that the records can be taken out into.
struct ExportRow {
  std::string title;     ///< "Fasts"
  std::string note;      ///< "A table for spreadsheets"
  std::string fileName;  ///< "mivo-fasts-2026-03-01.csv", to be changed by the user
  std::string ending;    ///< "csv"
  std::string filter;    ///< of a file dialog: "Table (*.csv)"
  bool operator==(const ExportRow&) const = default;
};

template <RecordOf<ExportRow> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, note, fileName, ending, filter] = record;
  visit("title", title);
  visit("note", note);
  visit("fileName", fileName);
  visit("ending", ending);
  visit("filter", filter);
}

struct ExportSheet {
  std::string title;  ///< "Export"
  std::string text;
  std::vector<ExportRow> rows;
  std::string weightsLabel;  ///< "Weights on pages and picture"
  bool printsWeights;
  bool operator==(const ExportSheet&) const = default;
};

template <RecordOf<ExportSheet> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, text, rows, weightsLabel, printsWeights] = record;
  visit("title", title);
  visit("text", text);
  visit("rows", rows);
  visit("weightsLabel", weightsLabel);
  visit("printsWeights", printsWeights);
}

ExportSheet composeExportSheet(bool printsWeights, const PageClients& clients);

/// What a row takes out.
ExportedPart exportedPartAt(std::size_t row);

}  // namespace mivo::host

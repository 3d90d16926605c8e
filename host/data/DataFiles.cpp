// SPDX-License-Identifier: MIT
#include "host/data/DataFiles.h"

#include "host/history/HistoryCsv.h"
#include "host/history/Snapshot.h"
#include "host/import/SaidFasts.h"

namespace mivo::host {

ImportedFile DataFiles::readLines(std::string_view text, std::int64_t goalSeconds, Date now) const {
  const auto words = reading.words();
  const auto zone = reading.zone();
  return readSaidFasts({}, text, {words->names, {now, *zone, words->order}, goalSeconds}, *reading.ids);
}

ImportPlan DataFiles::plan(const History& present, const std::vector<ImportedFile>& files) const {
  return planImport(present, files, *reading.ids);
}

std::string exportedText(ExportedPart part, const History& history, const std::vector<Setting>& settings) {
  if (part == ExportedPart::everything) return writeSnapshot(history, settings);
  return part == ExportedPart::fasts ? writeFastsCsv(history.fasts) : writeWeightsCsv(history.weights);
}

}  // namespace mivo::host

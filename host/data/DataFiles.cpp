// SPDX-License-Identifier: MIT
#include "host/data/DataFiles.h"

#include <iterator>
#include <span>
#include <utility>

#include "adapters/system/AtomicFile.h"
#include "host/files/ReadImportFiles.h"
#include "host/history/HistoryCsv.h"
#include "host/history/Snapshot.h"
#include "host/import/SaidFasts.h"

namespace mivo::host {
namespace {

ListedBackup counted(Backup backup) {
  const auto records = readBackup(backup.file);
  if (!records) return {.backup = std::move(backup), .fault = records.error()};
  return {.backup = std::move(backup),
          .counts = RecordCounts{static_cast<std::int64_t>(records->fasts.size()),
                                 static_cast<std::int64_t>(records->weights.size())}};
}

}  // namespace

DataFiles::Read DataFiles::read(const std::vector<std::string>& paths, const ImportAnswers& answers,
                                const std::function<void(double)>& progress, const std::stop_token& stop) const {
  const ImportSettings settings{place.zone(), answers.weightUnit, answers.dateOrder};
  const auto all = static_cast<double>(paths.size());
  std::vector<ImportedFile> files;
  for (std::size_t index = 0; index < paths.size(); ++index) {
    const auto ofAll = [&](double ofFile) { progress((static_cast<double>(index) + ofFile) / all); };
    auto some = readImportFiles(std::span{paths}.subspan(index, 1), settings, *place.ids, {ofAll, stop});
    if (!some) return some;
    std::ranges::move(*some, std::back_inserter(files));
  }
  return files;
}

ImportedFile DataFiles::readLines(std::string_view text, std::int64_t goalSeconds, Date now) const {
  const auto words = place.words();
  const auto zone = place.zone();
  return readSaidFasts({}, text, {words->names, {now, *zone, words->order}, goalSeconds}, *place.ids);
}

ImportPlan DataFiles::plan(const History& present, const std::vector<ImportedFile>& files) const {
  return planImport(present, files, *place.ids);
}

void DataFiles::write(ExportedPart part, const History& history, const std::filesystem::path& file) const {
  const std::string content = part == ExportedPart::everything ? writeSnapshot(history, place.settings())
                              : part == ExportedPart::fasts    ? writeFastsCsv(history.fasts)
                                                               : writeWeightsCsv(history.weights);
  adapters::writePrivately(file, content, adapters::Existing::replaced);
}

std::vector<ListedBackup> DataFiles::backups(const BackupFolder& folder, bool areCounted) const {
  std::vector<ListedBackup> listed;
  for (Backup& backup : folder.backups())
    listed.push_back(areCounted ? counted(std::move(backup)) : ListedBackup{.backup = std::move(backup)});
  return listed;
}

std::optional<KeptBackup> DataFiles::backUp(const History& history, Date now) const {
  return backupPlace().folder().keepAndRotate(history, place.settings(), now);
}

tl::expected<Restored, BadRecord> DataFiles::restore(const std::filesystem::path& file, Date now) const {
  const auto records = readBackup(file);
  if (!records) return tl::unexpected{records.error()};
  return host::restore(place.database, *records, backupPlace().folder(), place.settings(), now);
}

}  // namespace mivo::host

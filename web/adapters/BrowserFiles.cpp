// SPDX-License-Identifier: MIT
#include "web/adapters/BrowserFiles.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "host/history/Snapshot.h"
#include "host/import/ImportReader.h"
#include "host/text/DecodedText.h"
#include "web/adapters/Imports.h"
#include "web/adapters/StoredFiles.h"

namespace mivo::web {
namespace {

namespace fs = std::filesystem;

constexpr double pieceInBytes = 1 << 20;

host::ImportFault fault(const std::string& file, std::string reason) {
  return {.bad = {.file = file, .reason = std::move(reason)}};
}

/// "fasts.csv": the paths are the page's own.
std::string nameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

tl::expected<host::ImportedFile, host::ImportFault> readChosen(const std::string& path,
                                                               const host::ImportSettings& settings,
                                                               const UUIDGenerator& ids,
                                                               const std::function<bool(double)>& goesOn) {
  const std::string name = nameOf(path);
  const double size = importedChosenSize(path.data(), path.size());
  if (size < 0) return tl::unexpected{fault(name, "expected a file that can be read")};
  host::ImportReader reader{name, settings, ids};
  reader.expect(static_cast<std::size_t>(size));
  std::string piece;
  for (double at = 0; at < size && reader.wantsMore(); at += pieceInBytes) {
    if (!importedChosenPiece(&piece, path.data(), path.size(), at, std::min(pieceInBytes, size - at)))
      return tl::unexpected{fault(name, "expected a file that can be read")};
    if (at == 0 && piece.starts_with("PK\3\4"))
      return tl::unexpected{fault(name, "expected a file that is not packed; unpack the archive first")};
    reader.feed(piece);
    if (!goesOn((at + static_cast<double>(piece.size())) / size))
      return tl::unexpected{fault(name, "cancelled; nothing was changed")};
  }
  return reader.finish();
}

class StoredBackups final : public host::BackupFiles {
 public:
  explicit StoredBackups(std::shared_ptr<const UUIDGenerator> given) : ids{std::move(given)} {}

  std::vector<std::string> names(const fs::path& folder) const override {
    std::vector<std::string> all;
    for (const std::string& name : storedNames())
      if (fs::path path{name}; path.parent_path() == folder) all.push_back(path.filename().string());
    return all;
  }

  tl::expected<host::History, host::BadRecord> read(const fs::path& file) const override {
    auto content = readStored(file.string());
    if (!content)
      return tl::unexpected{host::BadRecord{.file = file.string(), .reason = "expected a file that can be read"}};
    return host::readSnapshot(*content, file.string(), *ids);
  }

  void write(const fs::path& file, std::string_view content) const override {
    if (isStored(file.string())) throw std::system_error{std::make_error_code(std::errc::file_exists), file.string()};
    replaceStored(file.string(), content);
  }

  void remove(const fs::path& file) const override {
    try {
      removeStored(file.string());
    } catch (const std::system_error&) {  // it stays for the next time
    }
  }

 private:
  std::shared_ptr<const UUIDGenerator> ids;
};

}  // namespace

Client<host::BackupFiles> storedBackups(std::shared_ptr<const UUIDGenerator> ids) {
  return std::make_shared<const StoredBackups>(std::move(ids));
}

BrowserFiles::BrowserFiles(Place where)
    : DataFiles{{.zone = where.zone, .ids = where.ids, .words = where.words}}, place{std::move(where)} {}

BrowserFiles::Read BrowserFiles::read(const std::vector<std::string>& paths, const host::ImportAnswers& answers,
                                      const std::function<void(double)>& progress, const StopToken& stop) const {
  std::vector<host::ImportedFile> files;
  for (const std::string& path : paths) {
    const auto goesOn = [&](double ofFile) {
      progress((static_cast<double>(files.size()) + ofFile) / static_cast<double>(paths.size()));
      return !stop.stopRequested();
    };
    auto file = readChosen(path, settingsFor(answers), ids(), goesOn);
    if (!file) return tl::unexpected{std::move(file.error())};
    files.push_back(std::move(*file));
  }
  return files;
}

tl::expected<host::FileState, host::FileFault> BrowserFiles::state(const std::string& path) const {
  return tl::unexpected{
      host::FileFault{{.file = nameOf(path), .reason = "expected a file that can be read"}, /*isGone=*/true}};
}

void BrowserFiles::write(host::ExportedPart part, const host::History& history, const fs::path& file) const {
  const std::string name = file.filename().string(), content = exportedText(part, history, place.settings());
  const std::string_view type = part == host::ExportedPart::everything ? "application/json" : "text/csv";
  importedWritten(name.data(), name.size(), type.data(), type.size(), content.data(), content.size());
}

void BrowserFiles::print(const fs::path& file, TimeRange, host::PrintedWeights) const {
  throw std::runtime_error{file.string() + ": the page is printed by the browser"};
}

host::BackupPlace BrowserFiles::backupPlace() const { return {.usual = host::backupFolder(place.database)}; }

tl::expected<host::BackupPlace, std::string> BrowserFiles::chooseBackupFolder(const fs::path& folder,
                                                                              const TextLookup&) const {
  return tl::unexpected{folder.string() + ": a browser keeps backups in one place alone"};
}

std::vector<host::ListedBackup> BrowserFiles::backups(const fs::path& folder, bool areCounted) const {
  const auto files = storedBackups(place.ids);
  std::vector<host::ListedBackup> listed;
  for (host::Backup& backup : host::BackupList{folder, files}.backups()) {
    listed.push_back({.backup = std::move(backup)});
    if (!areCounted) continue;
    host::ListedBackup& last = listed.back();
    if (const auto records = files->read(last.backup.file))
      last.counts = host::RecordCounts{static_cast<std::int64_t>(records->fasts.size()),
                                       static_cast<std::int64_t>(records->weights.size())};
    else
      last.fault = records.error();
  }
  return listed;
}

host::BackupList BrowserFiles::backupList() const { return {backupPlace().folder(), storedBackups(place.ids)}; }

std::optional<host::KeptBackup> BrowserFiles::backUp(const host::History& history, Date now) const {
  return backupList().keepAndRotate(history, place.settings(), now);
}

void BrowserFiles::backUpWhereDue(const std::function<host::History()>& history, Date now) const {
  if (backupList().isDue(now)) backUp(history(), now);
}

tl::expected<host::Restored, host::BadRecord> BrowserFiles::restore(const fs::path& file, Date now) const {
  const auto records = storedBackups(place.ids)->read(file);
  if (!records) return tl::unexpected{records.error()};
  host::Restored restored;
  restored.change = place.replace(*records, [&](const host::History& present) {
    restored.before = backupList().keep(present, place.settings(), now);
  });
  restored.isChanged = !restored.change.isEmpty();
  return restored;
}

}  // namespace mivo::web

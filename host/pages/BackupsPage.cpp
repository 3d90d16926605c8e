// SPDX-License-Identifier: MIT
#include "host/pages/BackupsPage.h"

#include "mivo/pages/DateTimeText.h"

namespace mivo::host {
namespace {

BackupRow rowOf(const ListedBackup& listed, const PageClients& clients) {
  BackupRow row{.date = dateTimeText(listed.backup.date, clients),
                .counts = {},
                .isReadable = listed.counts.has_value(),
                .spoken = {}};
  if (listed.counts) row.counts = countText(*listed.counts, clients.texts, clients.numbers);
  if (listed.fault) row.counts = clients.texts.text("Cannot be read");
  row.spoken = row.counts.empty() ? row.date : row.date + ", " + row.counts;
  return row;
}

}  // namespace

BackupsPage composeBackupsPage(const BackupsFeature::State& state, const PageClients& clients) {
  const TextLookup& texts = clients.texts;
  const BackupPlace& place = state.place;
  BackupsPage page{.title = texts.text("Backups"),
                   .button = texts.text("Back up now"),
                   .isBusy = state.isWorking,
                   .listTitle = state.backups->empty() ? "" : texts.text("Choose one to go back to"),
                   .rows = {},
                   .folderLabel = texts.text("Folder"),
                   .folder = place.folder().string(),
                   .changeLabel = place.isOffered ? texts.text("Change folder") : "",
                   .usualLabel = place.chosen.empty() ? "" : texts.text("Use the usual folder"),
                   .fault = backupFaultText(place, texts),
                   .note = texts.text("A backup is made each day before the first change. The newest of each of 7 "
                                      "days, 4 weeks and 12 months stay.")};
  for (const ListedBackup& listed : *state.backups) page.rows.push_back(rowOf(listed, clients));
  return page;
}

std::string newestBackupText(const BackupsFeature::State& state, const PageClients& clients) {
  return state.backups->empty() ? clients.texts.text("None")
                                : dateTimeText(state.backups->front().backup.date, clients);
}

RestoreSheet composeRestoreSheet(const AppFeature::State& state, const PageClients& clients) {
  const TextLookup& texts = clients.texts;
  const auto& chosen = *state.backups.chosen;
  if (!chosen) return {};
  const RecordCounts present{static_cast<std::int64_t>(state.fasts->size()),
                             static_cast<std::int64_t>(state.weights->size())};
  return {
      .title = texts.text("Restore this backup?"),
      .text = texts.text("All fasts and weights are replaced by those of the backup. What is there now is backed up "
                         "first, and you can undo this."),
      .presentLabel = texts.text("Now"),
      .present = countText(present, texts, clients.numbers),
      .backupLabel = dateTimeText(chosen->backup.date, clients),
      .backup = countText(chosen->counts.value_or(RecordCounts{}), texts, clients.numbers),
      .fault = state.backups.failure,
      .button = texts.text("Restore"),
      .cancelLabel = texts.text("Cancel"),
      .isBusy = state.backups.isRestoring};
}

}  // namespace mivo::host

// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/app/AppFeature.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// One backup.
struct BackupRow {
  std::string date;    ///< "Today, 03:00"
  std::string counts;  ///< "319 fasts, 200 weights"; why it cannot be read; empty while that is not known
  bool isReadable = false;
  std::string spoken;  ///< all of it
  bool operator==(const BackupRow&) const = default;
};

template <RecordOf<BackupRow> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [date, counts, isReadable, spoken] = record;
  visit("date", date);
  visit("counts", counts);
  visit("isReadable", isReadable);
  visit("spoken", spoken);
}

/// The backups that there are, a new one, and where they go.
struct BackupsPage {
  std::string title;   ///< "Backups"
  std::string button;  ///< "Back up now"
  bool isBusy = false;
  std::string listTitle;  ///< over the rows; none where there are none
  std::vector<BackupRow> rows;
  std::string folderLabel, folder;  ///< "Folder", the one in force; empty while that is not known
  std::string changeLabel;          ///< "Change folder", also of the dialog; none where no other can be chosen
  std::string usualLabel;           ///< "Use the usual folder"; none where that is the chosen one
  std::string fault;                ///< why the chosen folder is not in force
  std::string note;                 ///< when they are made, and which stay
  bool operator==(const BackupsPage&) const = default;
};

template <RecordOf<BackupsPage> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, button, isBusy, listTitle, rows, folderLabel, folder, changeLabel, usualLabel, fault, note] = record;
  visit("title", title);
  visit("button", button);
  visit("isBusy", isBusy);
  visit("listTitle", listTitle);
  visit("rows", rows);
  visit("folderLabel", folderLabel);
  visit("folder", folder);
  visit("changeLabel", changeLabel);
  visit("usualLabel", usualLabel);
  visit("fault", fault);
  visit("note", note);
}

BackupsPage composeBackupsPage(const BackupsFeature::State& state, const PageClients& clients);

/// "Today, 03:00" of the newest, "None" where there is none.
std::string newestBackupText(const BackupsFeature::State& state, const PageClients& clients);

/// Going back to a backup, for the user to agree to.
struct RestoreSheet {
  std::string title;                  ///< "Restore this backup?"
  std::string text;                   ///< what is replaced, and that it can be undone
  std::string presentLabel, present;  ///< "Now", "320 fasts, 201 weights"
  std::string backupLabel, backup;    ///< "Tue 9 Jun, 03:00", "319 fasts, 200 weights"
  std::string fault;                  ///< why it was not done
  std::string button, cancelLabel;
  bool isBusy = false;
  bool operator==(const RestoreSheet&) const = default;
};

template <RecordOf<RestoreSheet> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, text, presentLabel, present, backupLabel, backup, fault, button, cancelLabel, isBusy] = record;
  visit("title", title);
  visit("text", text);
  visit("presentLabel", presentLabel);
  visit("present", present);
  visit("backupLabel", backupLabel);
  visit("backup", backup);
  visit("fault", fault);
  visit("button", button);
  visit("cancelLabel", cancelLabel);
  visit("isBusy", isBusy);
}

/// Where one is chosen.
RestoreSheet composeRestoreSheet(const AppFeature::State& state, const PageClients& clients);

}  // namespace mivo::host

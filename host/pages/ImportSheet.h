// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "host/app/AppFeature.h"
#include "mivo/model/Record.h"
#include "mivo/pages/PageClients.h"

namespace mivo::host {

/// What one file would bring.
struct ImportFileRow {
  std::string name;     ///< "fasts.csv"
  std::string summary;  ///< "12 new fasts, 3 there already, 2 refused"
  std::string notes;    ///< what else there is to say, a line each
  std::string spoken;   ///< all of it
  bool operator==(const ImportFileRow&) const = default;
};

template <RecordOf<ImportFileRow> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [name, summary, notes, spoken] = record;
  visit("name", name);
  visit("summary", summary);
  visit("notes", notes);
  visit("spoken", spoken);
}

/// A row of a file that is not taken in.
struct RefusedRow {
  std::string place;   ///< "fasts.csv, line 14, end"
  std::string reason;  ///< "expected an end after the start, found "7Z""
  std::string spoken;  ///< both
  bool operator==(const RefusedRow&) const = default;
};

template <RecordOf<RefusedRow> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [place, reason, spoken] = record;
  visit("place", place);
  visit("reason", reason);
  visit("spoken", spoken);
}

/// The first of the rows that are refused, and how many others there are.
struct RefusedRows {
  std::string title;  ///< "2 rows are refused"
  std::vector<RefusedRow> rows;
  std::string more;  ///< "80 more are refused"
};

/// Without the folders of `paths` in the names of files.
RefusedRows composeRefusedRows(const RefusedRecords& refused, const List<std::string>& paths,
                               const PageClients& clients);

/// "12 new fasts, 3 there already, 2 refused"; empty where there is nothing at all.
std::string importCountsText(const ImportCounts& counts, const PageClients& clients);

/// Bringing files along: choosing them, how far they are read, what they ask, what they would bring. What is not to be
/// seen at a time is empty.
struct ImportSheet {
  std::string title;                 ///< "Import"
  std::string text;                  ///< what can be brought along, or what is asked, or how it stands
  std::string fault;                 ///< why nothing can be taken in, or was
  double progress = -1;              ///< 0 to 1 while files are read
  std::vector<std::string> answers;  ///< to what is asked
  std::vector<ImportFileRow> files;
  std::string refusedTitle;         ///< "2 rows are refused"
  std::vector<RefusedRow> refused;  ///< the first of them
  std::string moreRefused;          ///< "80 more are refused"
  std::string button;               ///< "Import 12 fasts"
  bool isBusy = false;              ///< the button waits
  std::string chooseLabel;          ///< "Choose files"
  std::string cancelLabel;
  bool takesFiles = false;  ///< those that are dropped on the window, now
  std::string dropLabel;    ///< while some are held over it
  bool operator==(const ImportSheet&) const = default;
};

template <RecordOf<ImportSheet> Listed, class Visit>
void fields(Listed& record, Visit&& visit) {
  auto& [title, text, fault, progress, answers, files, refusedTitle, refused, moreRefused, button, isBusy, chooseLabel,
         cancelLabel, takesFiles, dropLabel] = record;
  visit("title", title);
  visit("text", text);
  visit("fault", fault);
  visit("progress", progress);
  visit("answers", answers);
  visit("files", files);
  visit("refusedTitle", refusedTitle);
  visit("refused", refused);
  visit("moreRefused", moreRefused);
  visit("button", button);
  visit("isBusy", isBusy);
  visit("chooseLabel", chooseLabel);
  visit("cancelLabel", cancelLabel);
  visit("takesFiles", takesFiles);
  visit("dropLabel", dropLabel);
}

/// Of the state as a whole: an import need not be open.
ImportSheet composeImportSheet(const AppFeature::State& state, const PageClients& clients);

/// The same while files are brought along; once none are any more, the sheet as it was last, for it may still be seen
/// while it closes. Whether files can be dropped on the window it says all the time.
ImportSheet nextImportSheet(ImportSheet last, const AppFeature::State& state, const PageClients& clients);

}  // namespace mivo::host

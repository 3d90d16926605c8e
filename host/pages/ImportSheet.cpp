// SPDX-License-Identifier: MIT
#include "host/pages/ImportSheet.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

#include "host/import/ImportText.h"

namespace mivo::host {
namespace {

using Phase = ImportFeature::Phase;

constexpr std::size_t mostRefusedRows = 20;

void append(std::string& text, const std::string& part, std::string_view between) {
  if (part.empty()) return;
  if (!text.empty()) text += between;
  text += part;
}

std::string counted(std::int64_t count, const std::string& pattern, const PageClients& clients) {
  return count == 0 ? std::string{} : filledIn(pattern, {clients.numbers.string(count)});
}

/// Without the folder that the file was chosen from.
std::string nameOf(const std::string& file, const List<std::string>& paths) {
  for (const std::string& path : paths)
    if (file.starts_with(path)) return file.substr(path.rfind('/') + 1);
  return file;
}

RefusedRow refusedRow(const BadRecord& bad, const List<std::string>& paths, const PageClients& clients) {
  const TextLookup& texts = clients.texts;
  RefusedRow made{.place = nameOf(bad.file, paths), .reason = texts.text(bad.reason), .spoken = {}};
  append(made.place, bad.line > 0 ? counted(bad.line, texts.text("line {1}"), clients) : std::string{}, ", ");
  append(made.place, bad.column, ", ");
  if (bad.either) made.reason = filledIn(made.reason, {bad.either->first, bad.either->second});
  if (bad.value) made.reason = filledIn(texts.text("{1}, found \"{2}\""), {made.reason, *bad.value});
  made.spoken = made.place + ": " + made.reason;
  return made;
}

class Composer {
 public:
  Composer(const PageClients& pageClients, const List<std::string>& chosen)
      : clients{pageClients}, texts{pageClients.texts}, paths{chosen} {}

  ImportSheet sheet(const ImportFeature::State& state) const;

 private:
  ImportFileRow row(const ImportedFile& file, const ImportCounts& counts) const;
  void choose(ImportSheet& sheet) const;
  void tellFault(ImportSheet& sheet, const ImportFeature::State& state) const;
  void preview(ImportSheet& sheet, const ImportPreview& preview) const;

  const PageClients& clients;
  const TextLookup& texts;
  const List<std::string>& paths;
};

ImportFileRow Composer::row(const ImportedFile& file, const ImportCounts& counts) const {
  ImportFileRow made{
      .name = nameOf(file.name, paths), .summary = importCountsText(counts, clients), .notes = {}, .spoken = {}};
  if (made.summary.empty()) made.summary = texts.text("Nothing to import");
  for (const std::string& note : importNotes(file, texts, clients.numbers)) append(made.notes, note, "\n");
  made.spoken = made.name + ", " + made.summary;
  append(made.spoken, made.notes, ", ");
  return made;
}

void Composer::choose(ImportSheet& sheet) const {
  sheet.text = texts.text(
      "Bring fasts and weights along from backups, tables, other apps, scales and health exports. Drop files on the "
      "window, or choose them. Nothing is changed before you have seen what they hold.");
  sheet.chooseLabel = texts.text("Choose files");
}

void Composer::tellFault(ImportSheet& sheet, const ImportFeature::State& state) const {
  sheet.chooseLabel = texts.text("Choose files");
  sheet.fault = state.failure;
  if (!*state.fault) return;
  const RefusedRow fault = refusedRow((*state.fault)->bad, paths, clients);
  using enum ImportFault::Asks;
  switch ((*state.fault)->asks) {
    case nothing:
      sheet.fault = fault.spoken;
      break;
    case dateOrder:
      sheet.text = filledIn(texts.text("{1} has dates that can be read in two ways. Which comes first in them?"),
                            {nameOf((*state.fault)->bad.file, paths)});
      sheet.answers = {texts.text("The day, as in 31.12."), texts.text("The month, as in 12/31")};
      sheet.chooseLabel.clear();
      break;
    case weightUnit:
      sheet.text = filledIn(texts.text("{1} does not say in which unit its weights are."),
                            {nameOf((*state.fault)->bad.file, paths)});
      sheet.answers = {texts.text("Kilograms"), texts.text("Pounds"), texts.text("Stones")};
      sheet.chooseLabel.clear();
      break;
  }
}

void Composer::preview(ImportSheet& sheet, const ImportPreview& shown) const {
  const ImportPlan& plan = shown.plan;
  for (std::size_t index = 0; index < shown.files.size(); ++index)
    sheet.files.push_back(row(shown.files[index], plan.counts[index]));
  RefusedRows refused = composeRefusedRows(plan.refused, paths, clients);
  sheet.refusedTitle = std::move(refused.title);
  sheet.refused = std::move(refused.rows);
  sheet.moreRefused = std::move(refused.more);
  const RecordCounts fresh{static_cast<std::int64_t>(plan.change.addedFasts.size()),
                           static_cast<std::int64_t>(plan.change.addedWeights.size())};
  if (plan.change.isEmpty()) {
    sheet.text = texts.text("There is nothing new in it.");
    sheet.chooseLabel = texts.text("Choose files");
  } else {
    sheet.text = texts.text("What is there already stays as it is. You can undo this.");
    sheet.button = filledIn(texts.text("Import {1}"), {shortCountText(fresh, texts, clients.numbers)});
  }
}

ImportSheet Composer::sheet(const ImportFeature::State& state) const {
  ImportSheet sheet;
  switch (*state.phase) {
    case Phase::choosing:
      choose(sheet);
      break;
    case Phase::reading:
      sheet.text = texts.text("Reading the files");
      sheet.progress = state.progress;
      break;
    case Phase::refused:
      tellFault(sheet, state);
      break;
    case Phase::ready:
    case Phase::writing:
      preview(sheet, **state.preview);
      sheet.fault = state.failure;
      sheet.isBusy = *state.phase == Phase::writing;
      break;
  }
  return sheet;
}

}  // namespace

RefusedRows composeRefusedRows(const RefusedRecords& refused, const List<std::string>& paths,
                               const PageClients& clients) {
  const TextLookup& texts = clients.texts;
  const auto& first = refused.first();
  const auto count = refused.count();
  const std::size_t listed = std::min(first.size(), mostRefusedRows);
  RefusedRows made;
  for (std::size_t index = 0; index < listed; ++index) made.rows.push_back(refusedRow(first[index], paths, clients));
  const auto more = count - static_cast<std::int64_t>(listed);
  made.title = counted(count, texts.plural("{1} row is refused", "{1} rows are refused", count), clients);
  made.more = counted(more, texts.plural("{1} more was refused.", "{1} more were refused.", more), clients);
  return made;
}

std::string importCountsText(const ImportCounts& counts, const PageClients& clients) {
  const TextLookup& texts = clients.texts;
  std::string all;
  const auto add = [&](std::int64_t count, const std::string& pattern) {
    append(all, counted(count, pattern, clients), ", ");
  };
  add(counts.newFasts, texts.plural("{1} new fast", "{1} new fasts", counts.newFasts));
  add(counts.newWeights, texts.plural("{1} new weight", "{1} new weights", counts.newWeights));
  add(counts.equal, texts.text("{1} there already"));
  add(counts.refused, texts.text("{1} refused"));
  return all;
}

ImportSheet composeImportSheet(const AppFeature::State& state, const PageClients& clients) {
  const TextLookup& texts = clients.texts;
  const bool isOpen = state.importing && !*state.importing->isTyped;
  ImportSheet sheet = isOpen ? Composer{clients, *state.importing->paths}.sheet(*state.importing) : ImportSheet{};
  sheet.title = texts.text("Import");
  sheet.cancelLabel = texts.text("Cancel");
  sheet.takesFiles = takesFiles(state);
  sheet.dropLabel = texts.text("Drop files to import them");
  return sheet;
}

ImportSheet nextImportSheet(ImportSheet last, const AppFeature::State& state, const PageClients& clients) {
  ImportSheet now = composeImportSheet(state, clients);
  if (state.importing && !*state.importing->isTyped) return now;
  last.takesFiles = now.takesFiles;
  last.dropLabel = std::move(now.dropLabel);
  return last;
}

}  // namespace mivo::host

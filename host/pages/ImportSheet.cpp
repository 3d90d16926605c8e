// SPDX-License-Identifier: MIT
#include "host/pages/ImportSheet.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

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

class Composer {
 public:
  Composer(const PageClients& pageClients, const List<std::string>& chosen)
      : clients{pageClients}, texts{pageClients.texts}, paths{chosen} {}

  ImportSheet sheet(const ImportFeature::State& state) const;

 private:
  std::string counted(std::int64_t count, const std::string& pattern) const {
    return count == 0 ? std::string{} : filledIn(pattern, {clients.numbers.string(count)});
  }
  std::string summary(const ImportCounts& counts) const;
  ImportFileRow row(const ImportedFile& file, const ImportCounts& counts) const;
  RefusedRow row(const BadRecord& bad) const;
  void choose(ImportSheet& sheet) const;
  void tellFault(ImportSheet& sheet, const ImportFeature::State& state) const;
  void preview(ImportSheet& sheet, const ImportPreview& preview) const;

  /// Without the folder that the file was chosen from.
  std::string nameOf(const std::string& file) const;

  const PageClients& clients;
  const TextLookup& texts;
  const List<std::string>& paths;
};

std::string Composer::nameOf(const std::string& file) const {
  for (const std::string& path : paths)
    if (file.starts_with(path)) return file.substr(path.rfind('/') + 1);
  return file;
}

std::string Composer::summary(const ImportCounts& counts) const {
  std::string all;
  append(all, counted(counts.newFasts, texts.plural("{1} new fast", "{1} new fasts", counts.newFasts)), ", ");
  append(all, counted(counts.newWeights, texts.plural("{1} new weight", "{1} new weights", counts.newWeights)), ", ");
  append(all, counted(counts.equal, texts.text("{1} there already")), ", ");
  append(all, counted(counts.refused, texts.text("{1} refused")), ", ");
  return all.empty() ? texts.text("Nothing to import") : all;
}

ImportFileRow Composer::row(const ImportedFile& file, const ImportCounts& counts) const {
  ImportFileRow made{.name = nameOf(file.name), .summary = summary(counts), .notes = {}, .spoken = {}};
  for (const std::string& note : importNotes(file, texts, clients.numbers)) append(made.notes, note, "\n");
  made.spoken = made.name + ", " + made.summary;
  append(made.spoken, made.notes, ", ");
  return made;
}

RefusedRow Composer::row(const BadRecord& bad) const {
  RefusedRow made{.place = nameOf(bad.file), .reason = texts.text(bad.reason), .spoken = {}};
  append(made.place, bad.line > 0 ? counted(bad.line, texts.text("line {1}")) : std::string{}, ", ");
  append(made.place, bad.column, ", ");
  if (bad.value) made.reason = filledIn(texts.text("{1}, found \"{2}\""), {made.reason, *bad.value});
  made.spoken = made.place + ": " + made.reason;
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
  const RefusedRow fault = row((*state.fault)->bad);
  using enum ImportFault::Asks;
  switch ((*state.fault)->asks) {
    case nothing:
      sheet.fault = fault.spoken;
      break;
    case dateOrder:
      sheet.text = filledIn(texts.text("{1} has dates that can be read in two ways. Which comes first in them?"),
                            {nameOf((*state.fault)->bad.file)});
      sheet.answers = {texts.text("The day, as in 31.12."), texts.text("The month, as in 12/31")};
      sheet.chooseLabel.clear();
      break;
    case weightUnit:
      sheet.text =
          filledIn(texts.text("{1} does not say in which unit its weights are."), {nameOf((*state.fault)->bad.file)});
      sheet.answers = {texts.text("Kilograms"), texts.text("Pounds"), texts.text("Stones")};
      sheet.chooseLabel.clear();
      break;
  }
}

void Composer::preview(ImportSheet& sheet, const ImportPreview& shown) const {
  const ImportPlan& plan = shown.plan;
  for (std::size_t index = 0; index < shown.files.size(); ++index)
    sheet.files.push_back(row(shown.files[index], plan.counts[index]));
  const auto& first = plan.refused.first();
  const auto count = plan.refused.count();
  const std::size_t listed = std::min(first.size(), mostRefusedRows);
  for (std::size_t index = 0; index < listed; ++index) sheet.refused.push_back(row(first[index]));
  const auto more = count - static_cast<std::int64_t>(listed);
  sheet.refusedTitle = counted(count, texts.plural("{1} row is refused", "{1} rows are refused", count));
  sheet.moreRefused = counted(more, texts.plural("{1} more was refused.", "{1} more were refused.", more));
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

ImportSheet composeImportSheet(const AppFeature::State& state, const PageClients& clients) {
  const TextLookup& texts = clients.texts;
  ImportSheet sheet =
      state.importing ? Composer{clients, *state.importing->paths}.sheet(*state.importing) : ImportSheet{};
  sheet.title = texts.text("Import");
  sheet.cancelLabel = texts.text("Cancel");
  sheet.takesFiles = takesFiles(state);
  sheet.dropLabel = texts.text("Drop files to import them");
  return sheet;
}

}  // namespace mivo::host

// SPDX-License-Identifier: MIT
#include "host/import/ImportText.h"

#include <cstdint>

namespace mivo::host {
namespace {

std::string joined(const std::vector<std::string>& names) {
  constexpr std::size_t mostNamed = 12;
  std::string text;
  for (std::size_t index = 0; index < names.size(); ++index) {
    if (index == mostNamed) return text + ", ...";
    text += (text.empty() ? "" : ", ") + quotable(names[index]);
  }
  return text;
}

/// What was looked for in a file that holds no record.
std::string nothingFound(ImportKind kind, const TextLookup& texts) {
  switch (kind) {
    case ImportKind::snapshot:
      return texts.text("It is a backup of the app, and both its lists are empty.");
    case ImportKind::database:
      return texts.text("It is a database of the app, and holds no fasts and no weights.");
    case ImportKind::otherBackup:
      return texts.text("It was read as lists of another app, and none of them has a fast or a weight.");
    case ImportKind::healthExport:
      return texts.text("It was read as a health export, and no record of it is a body mass.");
    case ImportKind::fastTable:
      return texts.text("It was read as a table of fasts, and no row below its header has one.");
    case ImportKind::weightTable:
      return texts.text("It was read as a table of weights, and no row below its header has one.");
    case ImportKind::weightLog:
      return texts.text("It was read as a log of weights, and no line has one.");
    case ImportKind::saidFasts:
      break;  // is refused as a whole
  }
  return {};
}

}  // namespace

std::string importSummary(const ImportedFile& file, const ImportCounts& counts, bool isDone, const TextLookup& texts,
                          const NumberFormatter& numbers) {
  const auto filled = [&](const std::string& pattern, std::int64_t count) {
    return filledIn(pattern, {numbers.string(count)});
  };
  const std::string pattern = isDone ? texts.text("{1}: {2} and {3} added, {4} there already, {5} refused")
                                     : texts.text("{1}: {2} and {3} to add, {4} there already, {5} refused");
  return filledIn(pattern, {file.name, filled(texts.plural("{1} fast", "{1} fasts", counts.newFasts), counts.newFasts),
                            filled(texts.plural("{1} weight", "{1} weights", counts.newWeights), counts.newWeights),
                            numbers.string(counts.equal), numbers.string(counts.refused)});
}

std::vector<std::string> importNotes(const ImportedFile& file, const TextLookup& texts,
                                     const NumberFormatter& numbers) {
  std::vector<std::string> notes;
  const auto say = [&](std::int64_t count, const std::string& pattern) {
    if (count > 0) notes.push_back(filledIn(pattern, {numbers.string(count)}));
  };
  const auto& [notWeighed, toldTwice, passedOver, skipped, doubled, unused] = file.notes;
  if (file.fasts.empty() && file.weights.empty() && file.refused.count() == 0)
    notes.push_back(nothingFound(file.kind, texts));
  say(notWeighed, texts.plural("{1} row has no weight.", "{1} rows have no weight.", notWeighed));
  say(toldTwice, texts.plural("{1} weighing was told by more than one source, and taken once.",
                              "{1} weighings were told by more than one source, and taken once.", toldTwice));
  say(passedOver, texts.plural("{1} line above or below the table was passed over.",
                               "{1} lines above or below the table were passed over.", passedOver));
  say(skipped, texts.plural("{1} time that the clocks skipped was moved to the first one after it.",
                            "{1} times that the clocks skipped were moved to the first ones after them.", skipped));
  say(doubled, texts.plural("{1} time that the clocks showed twice was taken as the first of the two.",
                            "{1} times that the clocks showed twice were taken as the first of the two.", doubled));
  if (!unused.empty()) notes.push_back(filledIn(texts.text("Columns that were not used: {1}"), {joined(unused)}));
  return notes;
}

}  // namespace mivo::host

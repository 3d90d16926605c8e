// SPDX-License-Identifier: MIT
#include "host/import/ImportReader.h"

#include <algorithm>
#include <utility>

#include "host/history/Snapshot.h"
#include "host/text/TextFile.h"

namespace mivo::host {
namespace {

/// So much of a file tells what it is.
constexpr std::size_t tellingBytes = std::size_t{1} << 16;

constexpr const char* expectedFile =
    "expected a backup of the app, a table of fasts with a start and an end, or a table or log of weights with a date "
    "and a weight";

std::string_view firstText(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  return text.substr(0, text.find_first_of("\r\n"));
}

}  // namespace

ImportReader::ImportReader(std::string file, ImportSettings importSettings, const UUIDGenerator& uuids)
    : name{std::move(file)}, settings{std::move(importSettings)}, ids{uuids} {}

void ImportReader::feed(std::string_view bytes) { take(pieces.feed(bytes)); }

void ImportReader::take(std::optional<std::string_view> text) {
  if (fault) return;
  if (!text) return fail("expected UTF-16 text, as its first two bytes announce");
  if (!std::holds_alternative<std::monostate>(reader)) return hand(*text);
  beginning += *text;
  if (beginning.size() >= tellingBytes) recognise();
}

void ImportReader::recognise() {
  const std::string text = std::exchange(beginning, {});
  const std::string_view first = firstText(text);
  if (first.starts_with('{')) {
    reader.emplace<WholeText>().text.reserve(std::min(expectedBytes, largestFileInBytes));
    return hand(text);
  }
  if (auto table = findTable(text)) {
    const std::size_t offset = table->offset;
    reader.emplace<TableReader>(std::move(*table), name);
    return hand(std::string_view{text}.substr(offset));
  }
  if (isWeightLog(text)) {
    reader.emplace<WeightLog>(name);
    return hand(text);
  }
  if (first.empty()) return fail(std::string{expectedFile} + ", found an empty file");
  fail(expectedFile, quotable(first));
}

void ImportReader::hand(std::string_view text) {
  if (auto* const whole = std::get_if<WholeText>(&reader)) {
    if (whole->text.size() + text.size() > largestFileInBytes)
      return fail("expected a file of at most " + std::to_string(largestFileInBytes >> 20) + " MiB");
    whole->text += text;
  } else if (auto* const table = std::get_if<TableReader>(&reader)) {
    fault = table->feed(text);
  } else if (auto* const log = std::get_if<WeightLog>(&reader)) {
    fault = log->feed(text);
  }
}

void ImportReader::fail(std::string reason, std::optional<std::string> value) {
  fault = ImportFault{{.file = name, .value = std::move(value), .reason = std::move(reason)}};
}

tl::expected<ImportedFile, ImportFault> ImportReader::finish() {
  take(pieces.finish());
  if (!fault && std::holds_alternative<std::monostate>(reader)) recognise();
  if (fault) return tl::unexpected{*fault};
  if (auto* const table = std::get_if<TableReader>(&reader)) return table->finish(settings, ids);
  if (auto* const log = std::get_if<WeightLog>(&reader)) return log->finish(settings, ids);
  return snapshot(std::get<WholeText>(reader).text);
}

tl::expected<ImportedFile, ImportFault> ImportReader::snapshot(std::string_view text) const {
  auto history = readSnapshot(text, name, ids);
  if (!history) return tl::unexpected{ImportFault{std::move(history.error())}};
  return ImportedFile{.name = name,
                      .kind = ImportKind::snapshot,
                      .fasts = std::move(history->fasts),
                      .weights = std::move(history->weights),
                      .endsBeforeStart = std::move(history->endsBeforeStart)};
}

}  // namespace mivo::host

// SPDX-License-Identifier: MIT
#include "host/import/ImportReader.h"

#include <algorithm>
#include <utility>

#include "host/database/ReadDatabaseBytes.h"
#include "host/history/Snapshot.h"
#include "host/import/JsonLists.h"
#include "host/text/DecodedText.h"

namespace mivo::host {
namespace {

/// So much of a file tells what it is.
constexpr std::size_t tellingBytes = std::size_t{1} << 16;

/// A document type may be so long.
constexpr std::size_t longestPrologue = std::size_t{1} << 20;

constexpr const char* expectedFile =
    "expected a backup or database of the app, a table or list of fasts with a start and an end, one of weights with a "
    "date and a weight, or a health export";

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
  if (beginning.size() >= tellingBytes) recognise(false);
}

template <class Reader, class... Arguments>
void ImportReader::begin(std::string_view text, Arguments&&... arguments) {
  reader.emplace<Reader>(std::forward<Arguments>(arguments)...);
  hand(text);
}

void ImportReader::recognise(bool isWhole) {
  const std::string text = std::exchange(beginning, {});
  const std::string_view first = firstText(text);
  if (isDatabase(text)) return begin<WholeText>(text, WholeText::Kind::database);
  if (first.starts_with('{') || first.starts_with('[')) {
    const bool isOwn = first.starts_with('{') && beginsAsSnapshot(text);
    return begin<WholeText>(text, isOwn ? WholeText::Kind::snapshot : WholeText::Kind::jsonLists);
  }
  if (first.starts_with('<')) {
    const auto root = rootElement(text);
    if (!root && !isWhole && text.size() < longestPrologue) {
      beginning = text;
      return;
    }
    const auto line = 1 + std::ranges::count(text.substr(0, root.value_or(0)), '\n');
    const std::string_view fromRoot = std::string_view{text}.substr(root.value_or(text.size()));
    if (isHealthExport(fromRoot)) return begin<HealthExport>(fromRoot, name, line, settings, ids);
    return unknown(fromRoot);
  }
  if (auto table = findTable(text)) {
    const std::size_t offset = table->offset;
    return begin<TableReader>(std::string_view{text}.substr(offset), std::move(*table), name);
  }
  if (isWeightLog(text)) return begin<WeightLog>(text, name);
  unknown(first);
}

void ImportReader::hand(std::string_view text) {
  if (auto* const whole = std::get_if<WholeText>(&reader)) {
    if (whole->text.size() + text.size() > largestFileInBytes)
      return fail("expected a file of at most " + std::to_string(largestFileInBytes >> 20) + " MiB");
    if (whole->text.empty()) whole->text.reserve(std::min(expectedBytes, largestFileInBytes));
    whole->text += text;
  } else if (auto* const table = std::get_if<TableReader>(&reader)) {
    fault = table->feed(text);
  } else if (auto* const log = std::get_if<WeightLog>(&reader)) {
    fault = log->feed(text);
  } else if (auto* const health = std::get_if<HealthExport>(&reader)) {
    fault = health->feed(text);
  }
}

void ImportReader::fail(std::string reason) { fault = ImportFault{.bad = {.file = name, .reason = std::move(reason)}}; }

void ImportReader::unknown(std::string_view text) {
  const std::string_view line = firstText(text);
  fault = ImportFault{.bad = {.file = name, .reason = expectedFile}, .isUnknown = true};
  if (line.empty())
    fault->bad.reason += ", found an empty file";
  else
    fault->bad.value = quotable(line);
}

tl::expected<ImportedFile, ImportFault> ImportReader::finish() {
  take(pieces.finish());
  if (!fault && std::holds_alternative<std::monostate>(reader)) recognise(true);
  if (fault) return tl::unexpected{*fault};
  if (auto* const table = std::get_if<TableReader>(&reader)) return table->finish(settings, ids);
  if (auto* const log = std::get_if<WeightLog>(&reader)) return log->finish(settings, ids);
  if (auto* const health = std::get_if<HealthExport>(&reader)) return health->finish();
  return whole(std::get<WholeText>(reader));
}

tl::expected<ImportedFile, ImportFault> ImportReader::whole(WholeText& held) const {
  using Kind = WholeText::Kind;
  if (held.kind == Kind::jsonLists) return readJsonLists(held.text, name, settings, ids);
  ImportedFile file{.name = name, .kind = held.kind == Kind::database ? ImportKind::database : ImportKind::snapshot};
  auto history =
      held.kind == Kind::database
          ? readDatabaseBytes(std::move(held.text), name, [&file](BadRecord bad) { file.refused.add(std::move(bad)); })
          : readSnapshot(held.text, name, ids, &file.settings);
  if (!history) return tl::unexpected{ImportFault{std::move(history.error())}};
  file.fasts = std::move(history->fasts);
  file.weights = std::move(history->weights);
  file.endsBeforeStart = std::move(history->endsBeforeStart);
  return file;
}

}  // namespace mivo::host

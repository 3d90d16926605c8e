// SPDX-License-Identifier: MIT
#include "host/import/JsonLists.h"

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "host/import/Columns.h"
#include "host/import/ReadRows.h"
#include "host/import/RecordRows.h"

namespace mivo::host {
namespace {

constexpr std::size_t mostKeys = 200;  // of the objects of a list

/// A list of objects, and the keys that they have between them.
struct List {
  std::string name;
  std::vector<std::string> keys;

  std::size_t placeOf(std::string_view key) const {
    return static_cast<std::size_t>(std::ranges::find(keys, key) - keys.begin());
  }
};

/// Walks lists of objects at the top, or one key below it. `Visitor` is told of each list, of the members of its
/// objects and of their ends. The names of the rest are the parser's.
template <class Visitor>
class Walk : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Walk<Visitor>> {
 public:
  Walk(Visitor& told, const rapidjson::MemoryStream& characters) : visitor{told}, stream{characters} {}

  bool Null() { return value({}); }
  bool Bool(bool isTrue) { return value(isTrue ? "true" : "false"); }
  bool RawNumber(const char* digits, std::size_t length, bool) { return value({digits, length}); }
  bool String(const char* text, std::size_t length, bool) { return value({text, length}); }
  bool Key(const char* name, std::size_t length, bool) {
    if (depth == 1) listName.assign(name, length);
    if (isInObject()) key.assign(name, length);
    return true;
  }
  bool StartObject() {
    ++depth;
    if (isList && depth == listDepth + 1) visitor.beginObject(stream.Tell());
    return true;
  }
  bool EndObject(std::size_t) {
    if (isInObject()) visitor.endObject();
    --depth;
    return true;
  }
  bool StartArray() {
    if (!isList && depth <= 1) {
      isList = true;
      listDepth = depth + 1;
      visitor.beginList(depth == 0 ? "" : listName);
    }
    ++depth;
    return true;
  }
  bool EndArray(std::size_t) {
    if (isList && depth == listDepth) isList = false;
    --depth;
    return true;
  }

 private:
  bool isInObject() const { return isList && depth == listDepth + 1; }
  bool value(std::string_view text) {
    if (isInObject()) visitor.member(key, text);
    return true;
  }

  Visitor& visitor;
  const rapidjson::MemoryStream& stream;
  int depth = 0, listDepth = 0;
  bool isList = false;
  std::string listName, key;
};

/// Nothing, or where and what is wrong.
template <class Visitor>
std::optional<rapidjson::ParseResult> walk(std::string_view text, Visitor& visitor) {
  constexpr unsigned options =
      rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag;
  rapidjson::MemoryStream stream{text.data(), text.size()};
  Walk<Visitor> handler{visitor, stream};
  const auto result = rapidjson::Reader{}.Parse<options>(stream, handler);
  return result.IsError() ? std::optional{result} : std::nullopt;
}

/// Learns which lists there are.
struct ListCollector {
  void beginList(std::string_view name) { lists.push_back({std::string{name}, {}}); }
  void beginObject(std::size_t) {}
  void member(const std::string& key, std::string_view) {
    auto& keys = lists.back().keys;
    if (keys.size() < mostKeys && std::ranges::find(keys, key) == keys.end()) keys.push_back(key);
  }
  void endObject() {}

  std::vector<List> lists;
};

/// Fills the rows of the lists whose columns are known.
struct RowCollector {
  struct Table {
    const List* list;
    std::optional<RecordRows> rows;
  };

  void beginList(std::string_view) {
    ++current;
    count = 0;
  }
  void beginObject(std::size_t offset) {
    line += std::count(text.data() + counted, text.data() + offset, '\n');
    counted = offset;
    cells.assign(table().list->keys.size(), {});
    ++count;
  }
  void member(const std::string& key, std::string_view value) {
    if (!table().rows) return;
    const std::size_t place = table().list->placeOf(key);
    if (place < cells.size()) cells[place] = value;
  }
  void endObject() {
    if (!table().rows) return;
    const std::vector<std::string_view> fields{cells.begin(), cells.end()};
    isFull = !table().rows->add(line, fields, count - 1) || isFull;
  }
  Table& table() { return tables[current - 1]; }

  std::string_view text;
  std::vector<Table> tables = {};
  std::size_t current = 0, count = 0, counted = 0;
  std::int64_t line = 1;
  std::vector<std::string> cells = {};
  bool isFull = false;
};

std::optional<RecordRows> rowsOf(const List& list) {
  const std::vector<std::string_view> keys{list.keys.begin(), list.keys.end()};
  auto columns = readColumns(keys);
  if (!columns) return std::nullopt;
  columns->list = list.name;
  columns->hasPaths = true;
  return RecordRows{std::move(*columns)};
}

ImportFault malformed(std::string_view text, const std::string& file, const rapidjson::ParseResult& result) {
  const std::size_t at = std::min(result.Offset(), text.size());
  const auto line = 1 + std::ranges::count(text.substr(0, at), '\n');
  const bool isEnd = text.find_first_not_of(" \t\r\n", at) == std::string_view::npos;
  return {{.file = file,
           .line = line,
           .reason = isEnd ? "expected more JSON, found the end of the file"
                           : std::string{"expected well-formed JSON: "} + rapidjson::GetParseError_En(result.Code())}};
}

}  // namespace

bool beginsAsSnapshot(std::string_view text) {
  const std::size_t quote = text.find('"');
  const std::string_view before = text.substr(0, quote);
  if (quote == std::string_view::npos || before.find_first_not_of("{ \t\r\n") != std::string_view::npos) return true;
  const std::string_view key = text.substr(quote + 1, text.find('"', quote + 1) - quote - 1);
  return key == "version" || key == "fasts" || key == "weights";
}

tl::expected<ImportedFile, ImportFault> readJsonLists(std::string_view text, const std::string& file,
                                                      const ImportSettings& settings, const UUIDGenerator& ids) {
  if (text.find('\0') != std::string_view::npos)  // the parser takes it for the end
    return tl::unexpected{ImportFault{{.file = file, .reason = "expected UTF-8 text"}}};
  ListCollector collector;
  if (const auto wrong = walk(text, collector)) return tl::unexpected{malformed(text, file, *wrong)};
  RowCollector rows{.text = text};
  for (const List& list : collector.lists) rows.tables.push_back({&list, rowsOf(list)});
  walk(text, rows);
  if (rows.isFull) return tl::unexpected{ImportFault{{.file = file, .reason = "expected fewer records"}}};
  ImportedFile imported{.name = file, .kind = ImportKind::otherBackup};
  bool isKnown = false;
  for (const auto& [list, records] : rows.tables) {
    if (!records) continue;
    isKnown = true;
    if (auto fault = readRows(*records, settings, ids, imported)) return tl::unexpected{std::move(*fault)};
  }
  if (isKnown) return imported;
  return tl::unexpected{ImportFault{
      .bad = {.file = file, .reason = "expected lists of fasts with a start and an end, or of weights with a date"},
      .isUnknown = true}};
}

}  // namespace mivo::host

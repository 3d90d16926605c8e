// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <variant>

#include "host/import/HealthExport.h"
#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "host/import/TableReader.h"
#include "host/import/WeightLog.h"
#include "host/text/Utf8Pieces.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// Reads a file that somebody brings along, in pieces of any size, whoever has the bytes. What it is, its content says,
/// never its name: the app's snapshot or database, a table of fasts or weights, a weight log, lists in JSON, a health
/// export. Whoever holds an archive opens it and has a reader for each of its files.
///
///     ImportReader reader{"fasts.csv", settings, ids};
///     while (reader.wantsMore() && source.hasMore()) reader.feed(source.next());
///     const auto file = reader.finish();  // what it holds, with the rows that were refused
///
/// Text is UTF-8, or UTF-16 that a mark announces. Tables and logs are kept as far as their records need them, at most
/// `RecordRows::mostBytes`; what is JSON or a database is kept whole, at most `largestFileInBytes`; of a health export
/// only the weights are kept. A fault means that nothing of the file was taken: it is none of these, it breaks off, or
/// it leaves open what only a person can say. Thread: one at a time.
class ImportReader {
 public:
  /// `file` names the file in sentences; `ids` makes those of records that bring none, and must outlive the reader.
  ImportReader(std::string file, ImportSettings settings, const UUIDGenerator& ids);

  /// How long the file will be, where that is known: it saves copies.
  void expect(std::size_t bytes) { expectedBytes = bytes; }
  void feed(std::string_view bytes);
  /// False once it is known that the file cannot be read.
  bool wantsMore() const { return !fault; }
  tl::expected<ImportedFile, ImportFault> finish();

 private:
  /// A text that is read when it is there as a whole.
  struct WholeText {
    enum class Kind { snapshot, jsonLists, database } kind;
    std::string text = {};
  };

  void take(std::optional<std::string_view> text);
  void recognise(bool isWhole);
  template <class Reader, class... Arguments>
  void begin(std::string_view text, Arguments&&... arguments);
  void hand(std::string_view text);
  void fail(std::string reason);
  void unknown(std::string_view text);
  tl::expected<ImportedFile, ImportFault> whole(WholeText& held) const;

  std::string name;
  ImportSettings settings;
  const UUIDGenerator& ids;
  std::size_t expectedBytes = 0;
  Utf8Pieces pieces;
  std::string beginning;  // until the file is recognised
  std::variant<std::monostate, TableReader, WeightLog, HealthExport, WholeText> reader;
  std::optional<ImportFault> fault;
};

}  // namespace mivo::host

// SPDX-License-Identifier: MIT
#include "host/history/CsvTable.h"

#include <csv.h>

#include <algorithm>
#include <array>
#include <new>
#include <utility>
#include <vector>

namespace mivo::host {
namespace {

/// Collects what libcsv hands over field by field into records. Its callbacks cannot stop the parser, so a fault is
/// kept and what follows ignored until the parser returns from its piece of the text.
class RecordCollector {
 public:
  RecordCollector(std::string fileName, OnCsvRow callback, std::int64_t firstLine)
      : file{std::move(fileName)}, onRow{std::move(callback)}, line{firstLine} {}

  void field(std::string_view text) {
    if (fault) return;
    bytes += text;
    ends.push_back(bytes.size());
    lineBreaksInRecord += std::ranges::count(text, '\n');
  }

  /// `terminator` is the character that ended the record, negative at the end of the text. libcsv reports both
  /// characters of a CRLF, the second as an empty record.
  void endOfRecord(int terminator) {
    if (fault) return;
    if (!ends.empty()) deliver();
    line += lineBreaksInRecord;
    if (terminator == '\r' || (terminator == '\n' && !lastWasReturn)) ++line;
    lastWasReturn = terminator == '\r';
    bytes.clear();
    ends.clear();
    lineBreaksInRecord = 0;
    ++recordsSeen;
  }

  BadRecord bad(std::string reason) const { return {.file = file, .line = line, .reason = std::move(reason)}; }

  std::optional<BadRecord> fault;
  std::int64_t recordsSeen = 0;

 private:
  void deliver() {
    fields.clear();
    std::size_t from = 0;
    for (const std::size_t end : ends) {
      fields.push_back(std::string_view{bytes}.substr(from, end - from));
      from = end;
    }
    fault = onRow({line, fields});
  }

  std::string file;
  OnCsvRow onRow;
  std::string bytes;  // of the record's fields, one after the other
  std::vector<std::size_t> ends;
  std::vector<std::string_view> fields;
  std::int64_t line;
  std::int64_t lineBreaksInRecord = 0;
  bool lastWasReturn = false;
};

std::string_view firstLine(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of("\r\n"), text.size()));
  return text.substr(0, text.find_first_of("\r\n"));
}

}  // namespace

char csvSeparator(std::string_view text) {
  struct Candidate {
    char separator;
    std::size_t count = 0;
  };
  std::array<Candidate, 3> candidates{{{','}, {';'}, {'\t'}}};
  bool isQuoted = false;
  for (const char c : firstLine(text).substr(0, longestCsvRecordInBytes)) {
    if (c == '"') isQuoted = !isQuoted;
    for (Candidate& candidate : candidates) candidate.count += !isQuoted && c == candidate.separator;
  }
  return std::ranges::max_element(candidates, {}, &Candidate::count)->separator;
}

struct CsvReader::Parser {
  Parser(char separator, std::string file, OnCsvRow onRow, std::int64_t firstLine)
      : collector{std::move(file), std::move(onRow), firstLine} {
    constexpr unsigned char options = CSV_STRICT | CSV_STRICT_FINI | CSV_REPALL_NL;
    if (csv_init(&parser, options) != 0) throw std::bad_alloc{};
    csv_set_delim(&parser, static_cast<unsigned char>(separator));
    csv_set_blk_size(&parser,
                     std::size_t{1} << 16);  // grows by this much: the default of 128 bytes makes long fields slow
  }
  ~Parser() { csv_free(&parser); }
  Parser(const Parser&) = delete;
  Parser& operator=(const Parser&) = delete;

  std::optional<BadRecord> feed(std::string_view piece) {
    const auto recordsBefore = collector.recordsSeen;
    const bool isWellFormed =
        csv_parse(&parser, piece.data(), piece.size(), takeField, takeEnd, &collector) == piece.size();
    if (collector.fault) return std::move(collector.fault);
    if (!isWellFormed) return collector.bad("expected quotes only around whole fields, and doubled inside them");
    bytesSinceRecord = collector.recordsSeen == recordsBefore ? bytesSinceRecord + piece.size() : 0;
    if (bytesSinceRecord > longestCsvRecordInBytes) return collector.bad("expected a record of at most 1 MiB");
    return std::nullopt;
  }

  std::optional<BadRecord> finish() {
    if (csv_fini(&parser, takeField, takeEnd, &collector) != 0)
      return collector.bad("expected a quote that closes the one opened here, found the end of the file");
    return std::move(collector.fault);
  }

  static void takeField(void* text, std::size_t length, void* collector) {
    static_cast<RecordCollector*>(collector)->field({static_cast<const char*>(text), length});
  }
  static void takeEnd(int terminator, void* collector) {
    static_cast<RecordCollector*>(collector)->endOfRecord(terminator);
  }

  csv_parser parser;
  RecordCollector collector;
  std::size_t bytesSinceRecord = 0;
};

CsvReader::CsvReader(char separator, std::string file, OnCsvRow onRow, std::int64_t firstLine)
    : parser{std::make_unique<Parser>(separator, std::move(file), std::move(onRow), firstLine)} {}

CsvReader::~CsvReader() = default;
CsvReader::CsvReader(CsvReader&&) noexcept = default;
CsvReader& CsvReader::operator=(CsvReader&&) noexcept = default;

std::optional<BadRecord> CsvReader::feed(std::string_view piece) {
  constexpr std::size_t mostAtOnce = std::size_t{1} << 16;
  while (!piece.empty()) {
    if (auto fault = parser->feed(piece.substr(0, mostAtOnce))) return fault;
    piece.remove_prefix(std::min(mostAtOnce, piece.size()));
  }
  return std::nullopt;
}

std::optional<BadRecord> CsvReader::finish() { return parser->finish(); }

std::optional<BadRecord> readCsv(std::string_view text, char separator, const std::string& file, OnCsvRow onRow) {
  CsvReader reader{separator, file, std::move(onRow)};
  if (auto fault = reader.feed(text)) return fault;
  return reader.finish();
}

}  // namespace mivo::host

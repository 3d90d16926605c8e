// SPDX-License-Identifier: MIT
#include "host/history/CsvTable.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace mivo::host {
namespace {

/// "1:a|b 3:c|d": each record with its line; then the fault.
std::string table(std::string_view text) {
  std::string result;
  const auto bad = readCsv(text, csvSeparator(text), "a.csv", [&](const CsvRow& row) -> std::optional<BadRecord> {
    if (!result.empty()) result += ' ';
    result += std::to_string(row.line) + ':';
    for (const auto& field : row.fields) {
      if (&field != &row.fields.front()) result += '|';
      result += field;
    }
    if (row.fields.front() == "stop") return BadRecord{.file = "a.csv", .line = row.line, .reason = "stopped"};
    return std::nullopt;
  });
  return bad ? result + " " + describe(*bad) : result;
}

struct TableRow {
  const char* name;
  std::string_view text, expected;
};
void PrintTo(const TableRow& row, std::ostream* out) { *out << row.name; }
class Table : public testing::TestWithParam<TableRow> {};

TEST_P(Table, givesRecordsWithTheirLines) { EXPECT_EQ(table(GetParam().text), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    Rows, Table,
    testing::Values(
        TableRow{"comma", "a,b\nc,d\n", "1:a|b 2:c|d"},
        TableRow{"semicolon", "a;b,c;d\ne;f,g;h\n", "1:a|b,c|d 2:e|f,g|h"},
        TableRow{"tab", "a\tb\n\tc\n", "1:a|b 2:|c"}, TableRow{"oneColumn", "a\nb\n", "1:a 2:b"},
        TableRow{"quotedSeparatorsDoNotCount", "\"a,b,c\";d\n1;2\n", "1:a,b,c|d 2:1|2"},
        TableRow{"carriageReturns", "a,b\r\nc,d\r\n", "1:a|b 2:c|d"}, TableRow{"oldMac", "a,b\rc,d\r", "1:a|b 2:c|d"},
        TableRow{"noLastLineEnd", "a,b\nc,d", "1:a|b 2:c|d"},
        TableRow{"emptyLines", "\n\na,b\n\r\n\nc,d\n", "3:a|b 6:c|d"},
        TableRow{"blankLine", "a,b\n  \nc,d\n", "1:a|b 3:c|d"}, TableRow{"emptyFields", "a,b,c\n,,\n", "1:a|b|c 2:||"},
        TableRow{"quotes", "a,b\n\"c \"\"d\"\"\",\"e,f\"\n", "1:a|b 2:c \"d\"|e,f"},
        TableRow{"lineBreakInQuotes", "a,b\n\"c\nd\",e\nf,g\n", "1:a|b 2:c\nd|e 4:f|g"},
        TableRow{"quotedBlanksStay", "a,b\n\" c \", d \n", "1:a|b 2: c |d"}, TableRow{"nothing", "", ""},
        TableRow{"stopsAtTheFirstFault", "a\nstop\nb\n", "1:a 2:stop a.csv:2: stopped"},
        TableRow{"strayQuote", "a,b\nc,d\"e\n",
                 "1:a|b a.csv:2: expected quotes only around whole fields, and doubled inside them"},
        TableRow{"textAfterQuote", "a,b\n\"c\"d,e\n",
                 "1:a|b a.csv:2: expected quotes only around whole fields, and doubled inside them"},
        TableRow{"openQuote", "a,b\nc,\"d\ne,f\n",
                 "1:a|b a.csv:2: expected a quote that closes the one opened here, found the end of the file"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(CsvTable, refusesEndlessRecordsEarly) {
  const std::string endless(3'000'000, 'x');
  EXPECT_EQ(table(endless), " a.csv:1: expected a record of at most 1 MiB");
  EXPECT_EQ(table("a,b\n\"" + endless), "1:a|b a.csv:2: expected a record of at most 1 MiB");
  CsvReader reader{',', "a.csv", [](const CsvRow&) { return std::nullopt; }};
  EXPECT_FALSE(reader.feed(endless.substr(0, longestCsvRecordInBytes)));
  EXPECT_TRUE(reader.feed("x"));
}

TEST(CsvTable, readsLongRecordsAndManyAcrossItsPieces) {
  const std::string half(500'000, 'x');
  EXPECT_EQ(table("a,b\n" + half + "," + half + "\nc,d\n"), "1:a|b 2:" + half + "|" + half + " 3:c|d");
}

}  // namespace
}  // namespace mivo::host

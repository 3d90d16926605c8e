// SPDX-License-Identifier: MIT
#include "tally/request/Conditions.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace mivo::tally {
namespace {

struct CodingRow {
  const char* name;
  const char* acceptEncoding;
  bool expected;
};
void PrintTo(const CodingRow& row, std::ostream* out) { *out << row.name; }

class Codings : public testing::TestWithParam<CodingRow> {};

TEST_P(Codings, sayWhoUnpacksGzip) { EXPECT_EQ(acceptsGzip(GetParam().acceptEncoding), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    Rows, Codings,
    testing::Values(CodingRow{"notSent", "", false}, CodingRow{"alone", "gzip", true},
                    CodingRow{"browsers", "gzip, deflate, br, zstd", true}, CodingRow{"last", "br,\tGZip ", true},
                    CodingRow{"other", "br, xgzip, gzipx", false}, CodingRow{"weight", "gzip;q=0.001", true},
                    CodingRow{"noWeight", "gzip ; q=0, br", false}, CodingRow{"noWeightInFull", "gzip;Q=0.000", false},
                    CodingRow{"anything", "br, *;q=0.1", true}, CodingRow{"anythingButIt", "*, gzip;q=0", false},
                    CodingRow{"nothingElse", "identity, *;q=0", false}, CodingRow{"commas", ",,;,", false}),
    [](const auto& row) { return std::string{row.param.name}; });

struct TagRow {
  const char* name;
  const char* ifNoneMatch;
  bool expected;
};
void PrintTo(const TagRow& row, std::ostream* out) { *out << row.name; }

class Tags : public testing::TestWithParam<TagRow> {};

TEST_P(Tags, sayWhatTheClientHas) { EXPECT_EQ(namesTag(GetParam().ifNoneMatch, "\"ab\""), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(Rows, Tags,
                         testing::Values(TagRow{"notSent", "", false}, TagRow{"it", "\"ab\"", true},
                                         TagRow{"weak", "W/\"ab\"", true}, TagRow{"ofMany", "\"a\" ,\"ab\"", true},
                                         TagRow{"any", "*", true}, TagRow{"others", "\"a\", \"abc\"", false},
                                         TagRow{"bare", "ab", false}, TagRow{"unended", "\"ab", false}),
                         [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::tally

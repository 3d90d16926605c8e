// SPDX-License-Identifier: MIT
#include "host/text/DecodedText.h"

#include <gtest/gtest.h>

#include <string_view>

namespace mivo::host {
namespace {

std::string decoded(std::string_view bytes) {
  const auto text = decodedText(std::string{bytes}, "a.csv");
  return text ? *text : describe(text.error());
}

TEST(DecodedText, dropsAByteOrderMark) {
  EXPECT_EQ(decoded("\xEF\xBB\xBFstart,end"), "start,end");
  EXPECT_EQ(decoded("start,end"), "start,end");
  EXPECT_EQ(decoded(""), "");
}

TEST(DecodedText, readsUtf16ThatAMarkAnnounces) {
  using namespace std::string_view_literals;
  EXPECT_EQ(decoded("\xFF\xFE"
                    "a\0\xFC\0\x3D\xD8\x00\xDE"sv),
            "aü\U0001F600");
  EXPECT_EQ(decoded("\xFE\xFF"
                    "\0a\0\xFC\xD8\x3D\xDE\x00"sv),
            "aü\U0001F600");
  EXPECT_EQ(decoded("\xFF\xFE"
                    "a\0b"sv),
            "a.csv: expected UTF-16 text, as its first two bytes announce");
  EXPECT_EQ(decoded("\xFF\xFE"
                    "\x3D\xD8"sv),
            "a.csv: expected UTF-16 text, as its first two bytes announce");
  EXPECT_EQ(decoded("\xFF\xFE"
                    "\x00\xDE"
                    "a\0"sv),
            "a.csv: expected UTF-16 text, as its first two bytes announce");
}

}  // namespace
}  // namespace mivo::host

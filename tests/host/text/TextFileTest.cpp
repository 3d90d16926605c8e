// SPDX-License-Identifier: MIT
#include "host/text/TextFile.h"

#include <gtest/gtest.h>

#include <string_view>

namespace mivo::host {
namespace {

std::string decoded(std::string_view bytes) {
  const auto text = decodedText(std::string{bytes}, "a.csv");
  return text ? *text : describe(text.error());
}

TEST(TextFile, dropsAByteOrderMark) {
  EXPECT_EQ(decoded("\xEF\xBB\xBFstart,end"), "start,end");
  EXPECT_EQ(decoded("start,end"), "start,end");
  EXPECT_EQ(decoded(""), "");
}

TEST(TextFile, readsUtf16ThatAMarkAnnounces) {
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

TEST(TextFile, saysWhyAFileCannotBeRead) {
  const auto missing = readTextFile("/nowhere/a.csv");
  ASSERT_FALSE(missing);
  EXPECT_EQ(describe(missing.error()), "/nowhere/a.csv: expected a file that can be read: No such file or directory");
  const auto folder = readTextFile("/");
  ASSERT_FALSE(folder);
  EXPECT_EQ(describe(folder.error()), "/: expected a file that can be read: Is a directory");
}

TEST(TextFile, stopsReadingAFileWithoutEnd) {
  const auto endless = readTextFile("/dev/zero", std::size_t{8} << 20);
  ASSERT_FALSE(endless);
  EXPECT_EQ(describe(endless.error()), "/dev/zero: expected a file of at most 8 MiB");
}

}  // namespace
}  // namespace mivo::host

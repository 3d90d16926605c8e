// SPDX-License-Identifier: MIT
#include "host/disk/TextFile.h"

#include <gtest/gtest.h>

namespace mivo::host {
namespace {

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

// SPDX-License-Identifier: MIT
#include "adapters/system/AtomicFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

#include "tests/support/FullDisk.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::adapters {
namespace {

namespace fs = std::filesystem;

class AtomicFile : public testing::Test {
 protected:
  std::string contents() const {
    std::ostringstream read;
    read << std::ifstream{file}.rdbuf();
    return read.str();
  }

  int codeOf(Existing existing) const {
    try {
      writePrivately(file, "newer", existing);
    } catch (const std::system_error& error) {
      EXPECT_THAT(error.what(), testing::HasSubstr(file.string()));
      return error.code().value();
    }
    return 0;
  }

  auto countOfFiles() const { return std::distance(fs::directory_iterator{folder.path}, fs::directory_iterator{}); }

  tests::TemporaryFolder folder;
  fs::path file = folder.path / "file";
};

TEST_F(AtomicFile, isReplacedOnlyWhereThatIsMeant) {
  EXPECT_EQ(codeOf(Existing::refused), 0);
  std::ofstream{file} << "older";
  EXPECT_EQ(codeOf(Existing::refused), EEXIST);
  EXPECT_EQ(contents(), "older");
  fs::permissions(file, fs::perms::all);
  EXPECT_EQ(codeOf(Existing::replaced), 0);
  EXPECT_EQ(contents(), "newer");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(countOfFiles(), 1);
}

TEST_F(AtomicFile, staysAsItWasWhereTheDiskIsFull) {
  std::ofstream{file} << "older";
  {
    const tests::FullDisk full;
    EXPECT_EQ(codeOf(Existing::replaced), EFBIG);
  }
  EXPECT_EQ(contents(), "older");
  EXPECT_EQ(countOfFiles(), 1);
}

}  // namespace
}  // namespace mivo::adapters

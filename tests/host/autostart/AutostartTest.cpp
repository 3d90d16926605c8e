// SPDX-License-Identifier: MIT
#include "host/autostart/Autostart.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <system_error>

#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;

std::string content(const fs::path& file) {
  std::ostringstream text;
  text << std::ifstream{file}.rdbuf();
  return text.str();
}

struct AutostartTest : testing::Test {
  tests::TemporaryFolder folder;
  fs::path file = folder.path / "autostart" / "mivo-reminder.desktop";
};

TEST_F(AutostartTest, liesWhereTheDesktopLooks) {
  setenv("XDG_CONFIG_HOME", folder.path.c_str(), 1);
  EXPECT_EQ(autostartFile(), file);
  unsetenv("XDG_CONFIG_HOME");
  setenv("HOME", folder.path.c_str(), 1);
  EXPECT_EQ(autostartFile(), folder.path / ".config/autostart/mivo-reminder.desktop");
}

TEST_F(AutostartTest, comesAndGoesWithItsFolderLeft) {
  startAtLogin(file, {"/usr/bin/mivo-reminder"});
  EXPECT_TRUE(content(file).starts_with("[Desktop Entry]\nType=Application\n"));
  startNoLongerAtLogin(file);
  EXPECT_FALSE(fs::exists(file));
  EXPECT_TRUE(fs::exists(file.parent_path())) << "others' files lie there";
  startNoLongerAtLogin(file);
}

TEST_F(AutostartTest, quotesWhatDesktopsWouldRead) {
  struct Row {
    Command command;
    std::string line;
  };
  const Row rows[] = {{{"/usr/bin/mivo-reminder"}, R"(Exec="/usr/bin/mivo-reminder")"},
                      {{"/a b/c", "--database", "/d e.sqlite"}, R"(Exec="/a b/c" "--database" "/d e.sqlite")"},
                      {{R"(/100%/"$`\x)"}, R"(Exec="/100%%/\\"\\$\\`\\\\x")"}};
  for (const Row& row : rows) {
    startAtLogin(file, row.command);
    EXPECT_NE(content(file).find('\n' + row.line + '\n'), std::string::npos) << content(file);
  }
}

TEST_F(AutostartTest, leavesWhatTheUserWroteIntoIt) {
  startAtLogin(file, {"/usr/bin/mivo-reminder"});
  std::ofstream{file, std::ios::app} << "Hidden=true\n";
  const std::string theirs = content(file);
  startAtLogin(file, {"/usr/bin/mivo-reminder"});
  EXPECT_EQ(content(file), theirs);
  startAtLogin(file, {"/opt/mivo-reminder"});
  EXPECT_EQ(content(file).find("Hidden"), std::string::npos) << "of another program";
}

TEST_F(AutostartTest, namesTheFileThatCannotBeWritten) {
  std::ofstream{file.parent_path()} << "not a folder";
  try {
    startAtLogin(file, {"/usr/bin/mivo-reminder"});
    FAIL() << "was written";
  } catch (const std::system_error& error) {
    EXPECT_NE(std::string{error.what()}.find(file.parent_path().string()), std::string::npos) << error.what();
  }
}

}  // namespace
}  // namespace mivo::host

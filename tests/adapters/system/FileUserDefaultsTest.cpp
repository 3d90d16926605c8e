// SPDX-License-Identifier: MIT
#include "adapters/system/FileUserDefaults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

#include "mivo/platform/Dependencies.h"
#include "tests/support/Threads.h"

namespace mivo::adapters {
namespace {

namespace fs = std::filesystem;
using testing::AnyOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

class CollectingReporter final : public IssueReporter {
 public:
  void report(std::string_view message, const std::source_location&) const override { issues.emplace_back(message); }
  mutable std::vector<std::string> issues;
};

class FileUserDefaultsTest : public testing::Test {
 protected:
  FileUserDefaultsTest() { dependencies->issueReporter = reporter; }
  ~FileUserDefaultsTest() override { fs::remove_all(folder); }

  void put(std::string_view content) const { std::ofstream{file} << content; }
  std::string content() const {
    std::ifstream input{file};
    return {std::istreambuf_iterator<char>{input}, {}};
  }
  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator{folder}) found.push_back(entry.path().filename());
    std::ranges::sort(found);
    return found;
  }

  static fs::path freshFolder() {
    std::string name = testing::TempDir() + "defaults-XXXXXX";
    return mkdtemp(name.data());
  }

  fs::path folder = freshFolder(), file = folder / "app.json";
  std::shared_ptr<CollectingReporter> reporter = std::make_shared<CollectingReporter>();
  std::shared_ptr<Dependencies> dependencies = std::make_shared<Dependencies>();
  DependencyScope scope{dependencies};
};

TEST_F(FileUserDefaultsTest, readsBackEveryKindAfterARestart) {
  constexpr auto largest = std::numeric_limits<std::int64_t>::max();
  {
    const FileUserDefaults defaults{file};
    defaults.setValue("isOn", true);
    defaults.setValue("hours", largest);
    defaults.setValue("goal", 0.1);
    defaults.setValue("whole", 3.0);
    defaults.setValue("name", "Größe \"L\"\n");
    defaults.setValue("gone", std::int64_t{1});
    defaults.setValue("gone", std::nullopt);
  }
  const FileUserDefaults defaults{file};
  EXPECT_EQ(defaults.value("isOn"), UserDefaults::Value{true});
  EXPECT_EQ(defaults.value("hours"), UserDefaults::Value{largest});
  EXPECT_EQ(defaults.value("goal"), UserDefaults::Value{0.1});
  EXPECT_EQ(defaults.value("whole"), UserDefaults::Value{3.0}) << "a double stays one";
  EXPECT_EQ(defaults.value("name"), UserDefaults::Value{std::string{"Größe \"L\"\n"}});
  EXPECT_EQ(defaults.value("gone"), std::nullopt);
  EXPECT_EQ(defaults.value("neverWritten"), std::nullopt);
  EXPECT_THAT(reporter->issues, IsEmpty());
}

TEST_F(FileUserDefaultsTest, readingMakesNoFile) {
  const FileUserDefaults defaults{folder / "below" / "app.json"};
  EXPECT_EQ(defaults.value("x"), std::nullopt);
  EXPECT_THAT(names(), IsEmpty());
  defaults.setValue("x", true);
  EXPECT_EQ(defaults.value("x"), UserDefaults::Value{true});
}

TEST_F(FileUserDefaultsTest, twoHoldersSeeAndKeepEachOthersValues) {
  const FileUserDefaults app{file}, extension{file};
  app.setValue("a", std::int64_t{1});
  EXPECT_EQ(extension.value("a"), UserDefaults::Value{std::int64_t{1}});
  extension.setValue("b", std::int64_t{2});
  app.setValue("c", std::int64_t{3});
  EXPECT_EQ(app.value("b"), UserDefaults::Value{std::int64_t{2}});
  fs::remove(file);
  EXPECT_EQ(app.value("a"), std::nullopt);
}

TEST_F(FileUserDefaultsTest, processesThatWriteAtOnceLoseNothing) {
  constexpr int processes = 4, writes = 10;
  std::vector<pid_t> children;
  for (int process = 0; process < processes; ++process) {
    const pid_t child = fork();
    if (child == 0) {
      const FileUserDefaults defaults{file};
      for (int write = 0; write < writes; ++write)
        defaults.setValue(std::to_string(process) + '/' + std::to_string(write), std::int64_t{write});
      _exit(0);
    }
    children.push_back(child);
  }
  for (const pid_t child : children) waitpid(child, nullptr, 0);
  const FileUserDefaults defaults{file};
  for (int process = 0; process < processes; ++process)
    for (int write = 0; write < writes; ++write)
      EXPECT_EQ(defaults.integer(std::to_string(process) + '/' + std::to_string(write), -1), write);
  EXPECT_THAT(names(), ElementsAre("app.json", "app.json.lock")) << "no temporary file is left";
}

TEST_F(FileUserDefaultsTest, keepsADamagedFileAsideAndSaysSo) {
  put("{\"a\": 1,\n \"b\": ");
  const FileUserDefaults defaults{file};
  EXPECT_EQ(defaults.value("a"), std::nullopt);
  ASSERT_EQ(reporter->issues.size(), 1u);
  EXPECT_THAT(reporter->issues[0], HasSubstr(file.string() + ": these settings are damaged ("));
  EXPECT_THAT(reporter->issues[0], HasSubstr("line 2"));
  ASSERT_EQ(names().size(), 1u);
  EXPECT_THAT(reporter->issues[0], EndsWith("; the file is kept as " + names()[0]));
  defaults.setValue("b", true);
  EXPECT_EQ(FileUserDefaults{file}.value("b"), UserDefaults::Value{true});
  EXPECT_EQ(reporter->issues.size(), 1u) << "said once";
}

TEST_F(FileUserDefaultsTest, whatIsNoObjectIsDamagedToo) {
  for (const char* text : {"", "[]", "null", "7", "{} {}", "\xff"}) {
    put(text);
    reporter->issues.clear();
    EXPECT_EQ(FileUserDefaults{file}.value("a"), std::nullopt) << text;
    EXPECT_EQ(reporter->issues.size(), 1u) << text;
  }
}

TEST_F(FileUserDefaultsTest, keepsMembersThatItDoesNotKnow) {
  put(R"({"list": [1, 2], "nothing": null, "huge": 18446744073709551615})");
  const FileUserDefaults defaults{file};
  EXPECT_EQ(defaults.value("list"), std::nullopt);
  EXPECT_EQ(defaults.value("nothing"), std::nullopt);
  EXPECT_EQ(defaults.value("huge"), UserDefaults::Value{18446744073709551615.0});
  defaults.setValue("a", true);
  EXPECT_EQ(content(),
            "{\n  \"a\": true,\n  \"huge\": 18446744073709551615,\n  \"list\": [\n    1,\n    2\n  ],\n"
            "  \"nothing\": null\n}\n");
}

TEST_F(FileUserDefaultsTest, reportsWhatCannotBeKept) {
  const FileUserDefaults defaults{file};
  defaults.setValue("goal", 70.0);
  defaults.setValue("goal", std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(defaults.value("goal"), UserDefaults::Value{70.0});
  EXPECT_THAT(reporter->issues, ElementsAre("goal: a number that is not finite is not saved"));
}

TEST_F(FileUserDefaultsTest, aWriteThatFailsIsReportedAndHoldsInMemory) {
  put("{}");
  const fs::path below = file / "impossible.json";  // a file where the folder should be
  int told = 0;
  const FileUserDefaults defaults{below, [&](const fs::path& unsaved, const std::error_code& reason) {
                                    ++told;
                                    EXPECT_EQ(unsaved, below);
                                    EXPECT_THAT(reason, AnyOf(std::errc::not_a_directory, std::errc::file_exists));
                                  }};
  defaults.setValue("a", true);
  EXPECT_EQ(defaults.value("a"), UserDefaults::Value{true});
  ASSERT_EQ(reporter->issues.size(), 1u);
  EXPECT_THAT(reporter->issues[0], HasSubstr(file.string()));
  defaults.setValue("a", false);
  EXPECT_EQ(told, 1) << "once for as long as it lasts";
  fs::remove(file);
  defaults.setValue("a", true);
  fs::remove_all(file);
  put("{}");
  defaults.setValue("a", false);
  EXPECT_EQ(told, 2);
}

TEST_F(FileUserDefaultsTest, replacesTheTargetOfALinkAndKeepsItsPermissions) {
  put("{}");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  const fs::path link = folder / "link.json";
  fs::create_symlink("app.json", link);
  FileUserDefaults{link}.setValue("a", true);
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(content(), "{\n  \"a\": true\n}\n");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST_F(FileUserDefaultsTest, threadsMayShareOne) {
  const FileUserDefaults defaults{file};
  tests::Threads threads;
  for (int thread = 0; thread < 4; ++thread)
    threads.start([&defaults, thread] {
      for (int turn = 0; turn < 5; ++turn) {
        defaults.setValue(std::to_string(thread), std::int64_t{turn});
        EXPECT_EQ(defaults.integer(std::to_string(thread), -1), turn);
      }
    });
}

}  // namespace
}  // namespace mivo::adapters

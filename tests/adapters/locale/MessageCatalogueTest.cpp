// SPDX-License-Identifier: MIT
#include "adapters/locale/MessageCatalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <locale>
#include <string>
#include <vector>

namespace mivo::adapters {
namespace {

namespace fs = std::filesystem;

constexpr const char* more = "You're fasting more this {1} compared to last {1}.";

struct TextRow {
  const char *name, *localeTag, *key, *context, *expected;
};
void PrintTo(const TextRow& row, std::ostream* out) { *out << row.name; }
class CatalogueText : public testing::TestWithParam<TextRow> {};

TEST_P(CatalogueText, isTheUsersText) {
  const TextRow& row = GetParam();
  EXPECT_EQ(MessageCatalogue{row.localeTag}.text(row.key, row.context), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CatalogueText,
    testing::Values(TextRow{"word", "de", "week", "", "Woche"},
                    TextRow{"feminine", "de", more, "week", "Du fastest diese {1} mehr als letzte {1}."},
                    TextRow{"masculine", "de", more, "month", "Du fastest diesen {1} mehr als letzten {1}."},
                    TextRow{"neuter", "de", more, "year", "Du fastest dieses {1} mehr als letztes {1}."},
                    TextRow{"plainWithoutContext", "de", more, "", "Du fastest mehr als davor ({1})."},
                    TextRow{"plainForAnUnknownContext", "de", more, "decade", "Du fastest mehr als davor ({1})."},
                    TextRow{"keyWhereNothingFits", "de", "No such {1} text", "week", "No such {1} text"},
                    TextRow{"emptyKeyIsNotTheHeader", "de", "", "", ""},
                    TextRow{"regionUsesItsLanguage", "de-AT", "week", "", "Woche"},
                    TextRow{"underscoreAndEncoding", "es_MX.UTF-8", "week", "", "semana"},
                    TextRow{"scriptIsSkipped", "fr-Latn-CA", "week", "", "semaine"},
                    TextRow{"extensionIsSkipped", "de-DE-u-ca-buddhist", "week", "", "Woche"},
                    TextRow{"english", "en-GB", more, "week", more},
                    TextRow{"unknownLanguage", "tlh", "week", "", "week"},
                    TextRow{"noLanguage", "", "week", "", "week"}, TextRow{"posix", "C", "week", "", "week"}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(MessageCatalogue, leavesTheProcessesLocaleAlone) {
  const std::locale before;
  const MessageCatalogue catalogue{"de"};
  EXPECT_EQ(std::locale{}, before);
  EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
}

class CatalogueFiles : public testing::Test {
 protected:
  CatalogueFiles() { fs::create_directories(messages); }
  ~CatalogueFiles() override { fs::remove_all(folder); }

  void build(const std::string& entries) const {
    std::ofstream{folder / "fr.po"} << "msgid \"\"\nmsgstr \"Content-Type: text/plain; charset=UTF-8\\n"
                                       "Plural-Forms: nplurals=2; plural=n > 1;\\n\"\n"
                                    << entries;
    const std::string command = "msgfmt -o " + (messages / "mivo.mo").string() + ' ' + (folder / "fr.po").string();
    ASSERT_EQ(std::system(command.c_str()), 0);
  }

  static fs::path freshFolder() {
    std::string name = testing::TempDir() + "catalogues-XXXXXX";
    return mkdtemp(name.data());
  }

  fs::path folder = freshFolder(), messages = folder / "share" / "locale" / "fr" / "LC_MESSAGES";
};

TEST_F(CatalogueFiles, pluralsFollowTheLanguagesRule) {
  build("msgid \"{1} vote\"\nmsgid_plural \"{1} votes\"\nmsgstr[0] \"{1} voix unique\"\nmsgstr[1] \"{1} voix\"\n");
  const MessageCatalogue french{"fr", folder / "share" / "locale"}, english{"en", folder / "share" / "locale"};
  const auto votes = [](const TextLookup& texts, std::int64_t count) {
    return texts.plural("{1} vote", "{1} votes", count);
  };
  EXPECT_EQ(votes(french, 0), "{1} voix unique");
  EXPECT_EQ(votes(french, 1), "{1} voix unique");
  EXPECT_EQ(votes(french, -1), "{1} voix unique");
  EXPECT_EQ(votes(french, 2), "{1} voix");
  EXPECT_EQ(votes(french, std::int64_t{1} << 32), "{1} voix") << "more than an int holds";
  EXPECT_EQ(votes(english, 0), "{1} votes");
  EXPECT_EQ(votes(english, 1), "{1} vote");
  EXPECT_EQ(french.plural("{1} star", "{1} stars", 1), "{1} star") << "not in the catalogue";
}

TEST_F(CatalogueFiles, aDamagedCatalogueIsAsGoodAsNone) {
  std::ofstream{messages / "mivo.mo"} << "these are not messages";
  testing::internal::CaptureStderr();
  EXPECT_EQ((MessageCatalogue{"fr", folder / "share" / "locale"}.text("week")), "week");
  EXPECT_THAT(testing::internal::GetCapturedStderr(),
              testing::HasSubstr("the texts of \"fr\" in " + (folder / "share" / "locale").string() +
                                 " cannot be read, so they are English: "));
}

TEST_F(CatalogueFiles, areFoundAboveTheProgramAndNotInForeignFolders) {
  const fs::path program = folder / "build" / "bin";
  fs::create_directories(program);
  fs::create_directories(folder / "build" / "share" / "locale" / "de" / "LC_MESSAGES");
  EXPECT_EQ(catalogueFolder(program), "") << "other programs' catalogues only";
  fs::create_directories(folder / "share" / "locale" / "de" / "LC_MESSAGES");
  std::ofstream{folder / "share" / "locale" / "de" / "LC_MESSAGES" / "mivo.mo"};
  EXPECT_EQ(catalogueFolder(program), folder / "share" / "locale");
  EXPECT_EQ((MessageCatalogue{"de", ""}.text("week")), "week");
}

}  // namespace
}  // namespace mivo::adapters

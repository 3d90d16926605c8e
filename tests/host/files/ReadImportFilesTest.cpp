// SPDX-License-Identifier: MIT
#include "host/files/ReadImportFiles.h"

#include <gtest/gtest.h>
#include <zip.h>

#include <fstream>
#include <ostream>

#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/disk/DatabaseFile.h"
#include "tests/support/FixedClients.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

struct Entry {
  std::string name, content;
  const char* password = nullptr;
};

void zipUp(const std::string& path, const std::vector<Entry>& entries) {
  zip_t* const zip = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
  for (const auto& [name, content, password] : entries) {
    zip_source_t* const source = zip_source_buffer(zip, content.data(), content.size(), 0);
    const auto index = static_cast<zip_uint64_t>(zip_file_add(zip, name.c_str(), source, ZIP_FL_ENC_UTF_8));
    if (password) zip_file_set_encryption(zip, index, ZIP_EM_AES_256, password);
  }
  ASSERT_EQ(zip_close(zip), 0);
}

constexpr const char* fasts = "start,end\n2026-03-01T20:00Z,2026-03-02T12:00Z\n";
constexpr const char* masses =
    "<?xml version=\"1.0\"?><HealthData>\n<Record type=\"HKQuantityTypeIdentifierBodyMass\" unit=\"kg\" "
    "startDate=\"2026-03-01 08:35:00 +0100\" value=\"81.4\"/></HealthData>";
constexpr const char* otherXml = "<?xml version=\"1.0\"?><ClinicalDocument/>";

class ReadFiles : public testing::Test {
 protected:
  void write(const std::string& name, std::string_view content) const {
    std::ofstream{folder.file(name), std::ios::binary} << content;
  }

  /// "fasts.csv: 1 fasts, 0 weights, 0 refused; ...", or the fault; without the folder.
  std::string read(const std::vector<std::string>& names, const ImportWatch& watch = {}) const {
    std::vector<std::string> paths;
    for (const std::string& name : names) paths.push_back(folder.file(name));
    const tests::CountingUUIDs ids;
    const auto files = readImportFiles(paths, {.zone = adapters::loadTimeZone("UTC").value()}, ids, watch);
    std::string text;
    if (!files) text = describe(files.error().bad);
    for (const auto& file : files.value_or(std::vector<ImportedFile>{}))
      text += file.name + ": " + std::to_string(file.fasts.size()) + " fasts, " + std::to_string(file.weights.size()) +
              " weights, " + std::to_string(file.refused.count()) + " refused; ";
    const std::string place = folder.file("");
    for (std::size_t at = text.find(place); at != std::string::npos; at = text.find(place))
      text.erase(at, place.size());
    return text;
  }

  tests::TemporaryFolder folder;
};

struct ZipRow {
  const char* name;
  std::vector<Entry> entries;
  std::string expected;
};

TEST_F(ReadFiles, ofAnArchiveWhatIsKnown) {
  const std::string bomb(std::size_t{8} << 20, '\0');
  for (const ZipRow& row : {
           ZipRow{"health",
                  {{"apple/", ""},
                   {"apple/._export.xml", "\0\5\26\7"},
                   {"apple/export_cda.xml", otherXml},
                   {"apple/exportar.xml", masses}},
                  "a.zip/apple/exportar.xml: 0 fasts, 1 weights, 0 refused; "},
           ZipRow{"several",
                  {{"fasts.csv", fasts}, {"readme", "hello"}, {"settings.json", "{\"dark\": true}"}, {"m.xml", masses}},
                  "a.zip/fasts.csv: 1 fasts, 0 weights, 0 refused; a.zip/m.xml: 0 fasts, 1 weights, 0 refused; "},
           ZipRow{"none",
                  {{"readme", "hello"}, {"zeros", bomb}},
                  "a.zip: expected a file in it that can be imported, found none among 2"},
           ZipRow{"empty", {{"nothing", ""}}, "a.zip: expected a file in it that can be imported, found none among 1"},
           ZipRow{"broken",
                  {{"fasts.csv", fasts}, {"m.xml", std::string{masses}.substr(0, 60)}},
                  "a.zip/m.xml:2: expected </HealthData>, found the end of the file"},
           ZipRow{"hiddenName", {{"\u202Evsc", fasts}}, "a.zip/\\xE2\\x80\\xAEvsc: 1 fasts, 0 weights, 0 refused; "},
       }) {
    zipUp(folder.file("a.zip"), row.entries);
    EXPECT_EQ(read({"a.zip"}), row.expected) << row.name;
  }
}

TEST_F(ReadFiles, refusesArchivesThatAreCutOrLocked) {
  zipUp(folder.file("a.zip"), {{"fasts.csv", fasts, "secret"}});
  EXPECT_TRUE(read({"a.zip"}).starts_with("a.zip/fasts.csv: expected a file that can be read from the archive: "));
  zipUp(folder.file("a.zip"), {{"fasts.csv", fasts}});
  std::filesystem::resize_file(folder.file("a.zip"), 60);
  EXPECT_TRUE(read({"a.zip"}).starts_with("a.zip: expected a zip archive that can be read, as a file: "));
}

TEST_F(ReadFiles, refusesADatabaseWhoseLatestChangesLieBesideIt) {
  const Database open = openDatabase(folder.file("d"));
  EXPECT_EQ(read({"d"}), "d: expected a database that no program has open; its latest changes are in d-wal");
}

TEST_F(ReadFiles, readsADatabaseThatIsClosed) {
  {
    const Database begun = openDatabase(folder.file("d"));
  }
  EXPECT_EQ(read({"d"}), "d: 0 fasts, 0 weights, 0 refused; ");
}

TEST_F(ReadFiles, allOrNone) {
  write("fasts.csv", fasts);
  write("broken.csv", "date,kg\n\"2026");
  EXPECT_EQ(read({"fasts.csv", "fasts.csv"}),
            "fasts.csv: 1 fasts, 0 weights, 0 refused; fasts.csv: 1 fasts, 0 weights, 0 refused; ");
  EXPECT_EQ(read({"fasts.csv", "broken.csv"}),
            "broken.csv:2: expected a quote that closes the one opened here, found the end of the file");
  EXPECT_EQ(read({"none"}), "none: expected a file that can be read: No such file or directory");
}

TEST_F(ReadFiles, tellsHowFarItIsAndStops) {
  std::string table = "date,kg\n";
  for (int row = 0; row < 20'000; ++row) table += "2026-03-01T20:00Z,81.4\n";
  write("long.csv", table);
  std::vector<double> steps;
  EXPECT_EQ(read({"long.csv"}, {.progress = [&](double fraction) { steps.push_back(fraction); }}),
            "long.csv: 0 fasts, 20000 weights, 0 refused; ");
  EXPECT_TRUE(std::ranges::is_sorted(steps));
  EXPECT_GT(steps.size(), 3u);
  EXPECT_GT(steps.back(), 0.8);
  StopSource stop;
  EXPECT_EQ(read({"long.csv"}, {.progress = [&](double) { stop.requestStop(); }, .stop = stop.token()}),
            "long.csv: cancelled; nothing was changed");
}

}  // namespace
}  // namespace mivo::host

// SPDX-License-Identifier: MIT
// The data as a whole: what is brought along, taken out, backed up and brought back, with real files and a real
// database.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "adapters/icu/LanguageWords.h"
#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/database/DatabaseHistory.h"
#include "host/disk/BackupFolder.h"
#include "host/disk/DatabaseFile.h"
#include "host/files/FilesOnDisk.h"
#include "host/pages/BackupsPage.h"
#include "host/pages/ExportSheet.h"
#include "host/pages/HealthSheet.h"
#include "host/pages/ImportSheet.h"
#include "host/pages/Message.h"
#include "host/pages/SeveralFastsSheet.h"
#include "tests/pages/Pages.h"
#include "tests/statistics/StatisticsWorld.h"
#include "tests/support/FullDisk.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using tests::utc;
using Action = AppFeature::Action;
using Import = ImportFeature::Action;
using Backups = BackupsFeature::Action;

class DataSteps : public tests::StatisticsTest {
 protected:
  DataSteps() { ::setenv("XDG_DATA_HOME", folder.path.c_str(), 1); }
  ~DataSteps() override { ::unsetenv("XDG_DATA_HOME"); }

  void settle() {
    do {
      world.tasks->runAll();
      world.queue->runAll();
    } while (world.tasks->count() > 0);
  }

  void send(Action action) {
    app.send(std::move(action));
    settle();
  }
  void sendImport(Import action) { send(Action::importing{PresentationAction<Import>::presented{std::move(action)}}); }
  void sendBackups(Backups action) { send(Action::backups{std::move(action)}); }

  std::string made(const std::string& name, const std::string& content) const {
    std::ofstream{folder.file(name), std::ios::binary} << content;
    return folder.file(name);
  }
  void choose(const std::vector<std::string>& paths) { send(Action::didChooseFiles{paths}); }

  ImportSheet sheet() const { return composeImportSheet(state(), pages.at(world.clock->now())); }
  BackupsPage backupsPage() const { return composeBackupsPage(state().backups, pages.at(world.clock->now())); }
  Message message() const { return composeMessage(state(), pages.texts, pages.numbers); }
  History onDisk() const { return openDatabase(file).history(); }
  const AppFeature::State& state() const { return app.state(); }

  tests::TemporaryFolder folder;
  std::filesystem::path file = folder.path / "mivo" / "mivo.sqlite";
  std::shared_ptr<const DatabaseHistory> history = std::make_shared<DatabaseHistory>(openDatabase(file));
  std::shared_ptr<const DataFiles> data = std::make_shared<FilesOnDisk>(
      FilesOnDisk::Place{.database = file,
                         .zone = [] { return adapters::loadTimeZone("UTC").value(); },
                         .settings = [] { return std::vector<Setting>{{"weightUnit", std::string{"kg"}}}; },
                         .ids = std::make_shared<adapters::LocalUUIDGenerator>(),
                         .words =
                             [] {
                               return std::make_shared<const TypedDateWords>(
                                   typedDateWords(adapters::dateWords(adapters::UserLocale::parse("en-GB").value())));
                             },
                         .defaults = world.dependencies.userDefaults,
                         .print =
                             [this](const std::filesystem::path& to, TimeRange range, PrintedWeights weights) {
                               if (to == "full.pdf") throw std::runtime_error{"full.pdf: the disk is full"};
                               printed.push_back(to.string() + " " + std::string{rawValue(range)} +
                                                 (weights == PrintedWeights::shown ? " with weights" : ""));
                             }});
  mutable std::vector<std::string> printed;
  tests::Pages pages;
  std::shared_ptr<const LinkedHealthClient> linked = [this] {
    auto client = std::make_shared<LinkedHealthClient>(world.dependencies.userDefaults);
    world.dependencies.healthKitClient = client;
    scope.emplace(std::make_shared<const Dependencies>(world.dependencies));
    return client;
  }();
  Store<AppFeature> app{AppFeature::State::make(TimeRange::week),
                        AppFeature{.history = history, .files = data, .linkedHealth = linked}, world.queue,
                        world.tasks};
};

const std::string twoFasts = "start,end\n2026-02-25T20:00Z,2026-02-26T12:00Z\n2026-02-26T20:00Z,2026-02-27T12:00Z\n";

struct PreviewRow {
  const char* name;
  std::vector<std::pair<std::string, std::string>> files;  // names and contents
  std::string text, fault = {};
  std::vector<std::string> answers = {};
  std::vector<std::string> rows = {}, refused = {};
  std::string button = {};
};
void PrintTo(const PreviewRow& row, std::ostream* out) { *out << row.name; }
class Previews : public DataSteps, public testing::WithParamInterface<PreviewRow> {};

TEST_P(Previews, sayWhatTheFilesHoldBeforeAnythingIsWritten) {
  std::vector<std::string> paths;
  for (const auto& [name, content] : GetParam().files) paths.push_back(made(name, content));
  choose(paths);
  const ImportSheet shown = sheet();
  EXPECT_EQ(openScreen(state()), Screen::importing);
  EXPECT_EQ(shown.text, GetParam().text);
  EXPECT_EQ(shown.fault, GetParam().fault);
  EXPECT_EQ(shown.answers, GetParam().answers);
  std::vector<std::string> rows, refused;
  for (const ImportFileRow& row : shown.files) rows.push_back(row.spoken);
  for (const RefusedRow& row : shown.refused) refused.push_back(row.spoken);
  EXPECT_EQ(rows, GetParam().rows);
  EXPECT_EQ(refused, GetParam().refused);
  EXPECT_EQ(shown.button, GetParam().button);
  EXPECT_EQ(onDisk(), History{});
}

const std::string undoable = "What is there already stays as it is. You can undo this.";

INSTANTIATE_TEST_SUITE_P(
    Rows, Previews,
    testing::Values(
        PreviewRow{.name = "twoFilesOfWhichOneIsThere",
                   .files = {{"a.csv", twoFasts}, {"b.csv", twoFasts}},
                   .text = undoable,
                   .rows = {"a.csv, 2 new fasts", "b.csv, 2 there already"},
                   .button = "Import 2 fasts"},
        PreviewRow{
            .name = "refusedRows",
            .files = {{"a.csv", twoFasts + "2026-02-27T20:00Z,soon\n"}, {"w.csv", "date,weight\n2026-02-25,80 kg\n"}},
            .text = undoable,
            .rows = {"a.csv, 2 new fasts, 1 refused", "w.csv, 1 new weight"},
            .refused = {"a.csv, line 4, end: expected a date and time of the years 1 to 9999, as in "
                        "2026-03-01T12:00:00Z, found \"soon\""},
            .button = "Import 2 fasts, 1 weight"},
        PreviewRow{
            .name = "nothingInIt",
            .files = {{"a.csv", "start,end\n"}},
            .text = "There is nothing new in it.",
            .rows = {"a.csv, Nothing to import, It was read as a table of fasts, and no row below its header has "
                     "one."}},
        PreviewRow{.name = "dayOrMonthFirst",
                   .files = {{"a.csv", "start,end\n02/03/2026 20:00,03/03/2026 12:00\n"}},
                   .text = "a.csv has dates that can be read in two ways. Which comes first in them?",
                   .answers = {"The day, as in 31.12.", "The month, as in 12/31"}},
        PreviewRow{.name = "whichUnit",
                   .files = {{"w.csv", "date,weight\n2026-02-25,80\n"}},
                   .text = "w.csv does not say in which unit its weights are.",
                   .answers = {"Kilograms", "Pounds", "Stones"}},
        PreviewRow{.name = "noFileOfThese",
                   .files = {{"a.csv", twoFasts}, {"p.png", "\x89PNG\r\n"}},
                   .text = "",
                   .fault = "p.png: expected a backup or database of the app, a table or list of fasts with a start "
                            "and an end, one of "
                            "weights with a date and a weight, or a health export, found \"\\x89PNG\""}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST_F(DataSteps, importAllFilesAsOneChangeThatIsUndoneAsOne) {
  const std::vector<std::string> paths{made("a.csv", twoFasts),
                                       made("w.csv", "date,weight_kg\n2026-02-25T07:00Z,80\n")};
  choose(paths);
  sendImport(Import::didTapImport{});
  EXPECT_FALSE(state().importing);
  EXPECT_EQ(openScreen(state()), Screen::settings);
  EXPECT_THAT(onDisk().fasts, SizeIs(2));
  EXPECT_EQ(onDisk().fasts, state().fasts->elements());
  EXPECT_EQ(onDisk().weights, state().weights->elements());
  EXPECT_EQ(state().statistics.stats.totalFasts, 2);
  EXPECT_EQ(*state().statistics.addWeightLogState.weightInKg, 80) << "where the next one begins";
  EXPECT_EQ(message(), (Message{"Imported: 2 fasts, 1 weight", "Undo", false, 6}));

  choose(paths);
  EXPECT_EQ(sheet().text, "There is nothing new in it.");
  EXPECT_EQ(sheet().button, "");
  send(Action::didGoBack{});
  send(Action::didTapMessage{});
  EXPECT_EQ(onDisk(), History{});
  EXPECT_THAT(*state().fasts, IsEmpty());
}

struct TypedRow {
  const char* name;
  std::string text, summary, button = "Add fasts";
  std::vector<std::string> refused = {};
  std::string fault = {};
};
void PrintTo(const TypedRow& row, std::ostream* out) { *out << row.name; }
class TypedLines : public DataSteps, public testing::WithParamInterface<TypedRow> {};

TEST_P(TypedLines, sayWhatTheyHoldBeforeAnythingIsWritten) {
  send(Action::didOpen{Screen::severalFasts});
  send(Action::didTypeFasts{"25.2.2026 20:00 - 12:00"});
  sendImport(Import::didTapImport{});
  send(Action::didOpen{Screen::severalFasts});
  send(Action::didTypeFasts{"anything"});
  send(Action::didTypeFasts{GetParam().text});
  const SeveralFastsSheet shown = composeSeveralFastsSheet(*state().importing, pages.at(world.clock->now()));
  EXPECT_EQ(shown.summary, GetParam().summary);
  EXPECT_EQ(shown.fault, GetParam().fault);
  EXPECT_EQ(shown.button, GetParam().button);
  EXPECT_EQ(shown.canAdd, shown.button != "Add fasts");
  std::vector<std::string> refused;
  for (const RefusedRow& row : shown.refused) refused.push_back(row.spoken);
  EXPECT_EQ(refused, GetParam().refused);
  EXPECT_EQ(shown.refusedTitle.empty(), refused.empty());
  EXPECT_THAT(onDisk().fasts, SizeIs(1));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TypedLines,
    testing::Values(TypedRow{"none", " \n", ""},
                    TypedRow{"newAndOld",
                             "- 25.2.2026 20:00 - 12:00\n- 26.2.2026 20:00, 16h\n- 26.2.2026 20:00 to 12:00",
                             "1 new fast, 2 there already", "Add 1 fast"},
                    TypedRow{"nothingNew", "25.2.2026 20:00 - 12:00", "1 there already"},
                    TypedRow{"refused",
                             "26.2.2026 20:00 - 12:00\n27.2.2026 20:00 - soon",
                             "1 new fast, 1 refused",
                             "Add 1 fast",
                             {"line 2: expected an end, as in 12:00 or \"today 12:00\", found \"soon\""}},
                    TypedRow{"tooLong",
                             std::string(70'000, 'x'),
                             "",
                             "Add fasts",
                             {},
                             "This is too long to be read at once. Add it in several parts."}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST_F(DataSteps, addTypedFastsAsOneChangeThatIsUndoneAsOne) {
  send(Action::didTypeFasts{"25.2.2026 20:00 - 12:00"});
  EXPECT_FALSE(state().importing) << "where there is no field for it";
  send(Action::didOpen{Screen::severalFasts});
  send(Action::didTypeFasts{"25.2.2026 20:00 - 12:00\n26.2.2026 20:00 - 12:00"});
  EXPECT_FALSE(sheet().takesFiles) << "they would take the place of what is typed";
  {
    const tests::FullDisk full;
    sendImport(Import::didTapImport{});
  }
  EXPECT_EQ(composeSeveralFastsSheet(*state().importing, pages.at(world.clock->now())).fault,
            "Nothing was saved: the disk is full. Make room and try again.");
  app.send(Action::importing{PresentationAction<Import>::presented{Import::didTapImport{}}});
  send(Action::didTypeFasts{"26.2.2026 20:00 - 12:00"});
  EXPECT_EQ(openScreen(state()), Screen::fasting);
  ASSERT_THAT(onDisk().fasts, SizeIs(2)) << "what was confirmed, and not what is typed meanwhile";
  EXPECT_EQ(onDisk().fasts.front().fast.goalSeconds, state().nextGoalSeconds);
  EXPECT_EQ(onDisk().fasts, state().fasts->elements());
  EXPECT_EQ(message(), (Message{"Added: 2 fasts", "Undo", false, 6}));
  send(Action::didTapMessage{});
  EXPECT_EQ(onDisk(), History{});
}

TEST_F(DataSteps, readAnewWithTheAnswerToWhatTheFileDoesNotSay) {
  choose({made("a.csv", "start,end\n02/03/2026 20:00,03/03/2026 12:00\n"),
          made("w.csv", "date,weight\n2026-02-25,180\n")});
  sendImport(Import::didAnswer{9});
  EXPECT_THAT(sheet().answers, SizeIs(2)) << "it is no answer";
  sendImport(Import::didAnswer{0});
  EXPECT_THAT(sheet().answers, SizeIs(3)) << "the other file asks too";
  sendImport(Import::didAnswer{1});
  sendImport(Import::didTapImport{});
  ASSERT_THAT(onDisk().fasts, SizeIs(1));
  EXPECT_EQ(tests::text(onDisk().fasts[0].fast.start), "2026-03-02 20:00:00");
  EXPECT_NEAR(onDisk().weights.at(0).weightInKg, 81.6, 0.1);
}

TEST_F(DataSteps, writeWhatIsStillNewWhereAnotherProgramWasQuicker) {
  const std::string path = made("a.csv", twoFasts);
  choose({path});
  const auto quicker = data->plan({}, data->read({path}, {}, [](double) {}, {}).value());
  openDatabase(file).apply(quicker.change);
  sendImport(Import::didTapImport{});
  EXPECT_THAT(onDisk().fasts, SizeIs(2));
  EXPECT_EQ(message().text, "All of it is there already.");
  EXPECT_EQ(*state().undo, std::nullopt);
}

TEST_F(DataSteps, dropWhatWasReadOnceTheSheetIsClosedOrOtherFilesAreChosen) {
  app.send(Action::didChooseFiles{{made("a.csv", twoFasts)}});
  app.send(Action::didGoBack{});
  settle();
  EXPECT_FALSE(state().importing);
  app.send(Action::didChooseFiles{{made("a.csv", twoFasts)}});
  app.send(Action::didChooseFiles{{made("w.csv", "date,weight_kg\n2026-02-25T07:00Z,80\n")}});
  settle();
  EXPECT_EQ(sheet().button, "Import 1 weight");
}

TEST_F(DataSteps, tellHowFarALargeFileIsRead) {
  std::string large = "start,end\n";
  send(Action::didOpen{Screen::settings});
  for (int row = 0; row < 5000; ++row) large += "2026-02-25T20:00Z,2026-02-26T12:00Z\n";
  app.send(Action::didChooseFiles{{made("a.csv", large)}});
  EXPECT_EQ(sheet().progress, 0);
  world.tasks->runAll();
  world.queue->runOne();
  EXPECT_GT(sheet().progress, 0);
  EXPECT_LT(sheet().progress, 1);
  settle();
  EXPECT_LT(sheet().progress, 0) << "nothing is read any more";
  EXPECT_THAT(sheet().files, SizeIs(1));
}

TEST_F(DataSteps, listFewRefusedRowsOfMany) {
  std::string bad = "start,end\n";
  for (int row = 0; row < 150; ++row) bad += "2026-02-25T20:00Z,soon\n";
  choose({made("a.csv", bad)});
  EXPECT_EQ(sheet().refusedTitle, "150 rows are refused");
  EXPECT_THAT(sheet().refused, SizeIs(20));
  EXPECT_EQ(sheet().moreRefused, "130 more were refused.");
  EXPECT_EQ(sheet().button, "");
}

TEST_F(DataSteps, takeNoFilesWhileASheetIsOpenThatTheyWouldClose) {
  const std::string path = made("a.csv", twoFasts);
  send(Action::didOpen{Screen::addFast});
  EXPECT_FALSE(sheet().takesFiles);
  choose({path});
  EXPECT_EQ(openScreen(state()), Screen::editFast);
  send(Action::didOpen{Screen::about});
  EXPECT_TRUE(sheet().takesFiles);
  choose({});
  EXPECT_EQ(openScreen(state()), Screen::about);
  choose({path});
  EXPECT_TRUE(sheet().takesFiles) << "others may be dropped on it";
  app.send(Action::importing{PresentationAction<Import>::presented{Import::didTapImport{}}});
  EXPECT_FALSE(sheet().takesFiles) << "it is being written";
  EXPECT_TRUE(sheet().isBusy);
}

TEST_F(DataSteps, sayInThePreviewWhyNothingWasWritten) {
  choose({made("a.csv", twoFasts)});
  {
    const tests::FullDisk full;
    sendImport(Import::didTapImport{});
  }
  EXPECT_EQ(sheet().fault, "Nothing was saved: the disk is full. Make room and try again.");
  EXPECT_EQ(sheet().button, "Import 2 fasts") << "to be tried again";
}

TEST_F(DataSteps, takeOutWhatComesBackAsEqual) {
  choose({made("a.csv", twoFasts), made("w.csv", "date,weight_kg\n2026-02-25T07:00Z,80.1\n")});
  sendImport(Import::didTapImport{});
  const ExportSheet exported = composeExportSheet(false, pages.at(utc("2026-03-01 12:00")));
  const std::string sentences[] = {": 2 fasts, 1 weight", ": 2 fasts", ": 1 weight"};
  ASSERT_THAT(exported.rows, SizeIs(5));
  std::vector<std::string> names;
  for (std::size_t row = 0; row < 3; ++row) {
    const std::string path = folder.file(exported.rows[row].fileName);
    send(Action::didOpen{Screen::exporting});
    send(Action::didExport{exportedPartAt(row), path});
    EXPECT_EQ(openScreen(state()), Screen::settings);
    EXPECT_EQ(message().text, "Exported to " + path + sentences[row]);
    send(Action::didTapMessage{});
    names.push_back(exported.rows[row].fileName);
    choose({path});
    EXPECT_EQ(sheet().text, "There is nothing new in it.");
    EXPECT_NE(sheet().files.at(0).summary, "Nothing to import");
  }
  EXPECT_THAT(names, ElementsAre("mivo-2026-03-01.json", "mivo-fasts-2026-03-01.csv", "mivo-weights-2026-03-01.csv"));
  send(Action::didExport{ExportedPart::fasts, folder.file("no/such/folder.csv")});
  EXPECT_THAT(message().text, testing::HasSubstr("no/such/folder.csv"));
}

TEST_F(DataSteps, printTheShownRangeWithoutWeightsUnlessThatIsSwitchedOn) {
  send(Action::didExport{exportedPartAt(3), "statistics.pdf"});
  EXPECT_EQ(message().text, "Exported to statistics.pdf");
  send(Action::didSwitchPrintedWeights{});
  send(Action::statistics{
      StatisticsFeature::Action::binding{Write<&StatisticsFeature::State::timeRange>{TimeRange::month}}});
  send(Action::didExport{exportedPartAt(4), "statistics.png"});
  EXPECT_THAT(printed, ElementsAre("statistics.pdf week", "statistics.png month with weights"));
  send(Action::didExport{exportedPartAt(3), "full.pdf"});
  EXPECT_EQ(message().text, "full.pdf: the disk is full");
}

/// The body masses of those kilograms, at 07:00 of 1 March 2026 and the days after it.
std::string healthExport(const std::vector<int>& kilograms) {
  std::string all = "<HealthData>\n";
  for (std::size_t day = 0; day < kilograms.size(); ++day)
    all += "<Record type=\"HKQuantityTypeIdentifierBodyMass\" unit=\"kg\" startDate=\"2026-03-0" +
           std::to_string(day + 1) + " 07:00:00 +0000\" value=\"" + std::to_string(kilograms[day]) + "\"/>\n";
  return all + "</HealthData>\n";
}

class HealthSteps : public DataSteps {
 protected:
  void sendHealth(HealthFeature::Action action) { send(Action::health{std::move(action)}); }
  void link(const std::string& path) { sendHealth(HealthFeature::Action::didLink{path}); }
  void appear() { send(Action::statistics{StatisticsFeature::Action::onAppear{}}); }
  bool asksForAccess() const { return state().statistics.showHealthKitCard; }
  std::string row() const { return linkedFileText(state().health, pages.texts); }
};

TEST_F(HealthSteps, showThatTheyReadOnceMoreThanALookAtTheFileIsDone) {
  HealthFeature::State shown;
  EXPECT_LT(composeHealthSheet(shown, pages.texts).progress, 0);
  shown.reading = HealthFeature::Reading{};
  EXPECT_LT(composeHealthSheet(shown, pages.texts).progress, 0);
  shown.reading->progress = 0.25;
  EXPECT_EQ(composeHealthSheet(shown, pages.texts).progress, 0.25);
}

TEST_F(HealthSteps, askForAccessUntilAFileIsLinkedWhoseWeightsAreThereThen) {
  appear();
  EXPECT_TRUE(asksForAccess());
  EXPECT_EQ(row(), "None");
  EXPECT_EQ(composeHealthSheet(state().health, pages.texts).unlinkLabel, "");
  app.send(Action::health{HealthFeature::Action::didLink{made("export.xml", healthExport({80, 81}))}});
  EXPECT_FALSE(asksForAccess()) << "at once";
  app.send(Action::statistics{StatisticsFeature::Action::onAppear{}});
  EXPECT_FALSE(asksForAccess()) << "not until the answer comes either";
  settle();
  EXPECT_TRUE(world.dependencies.userDefaults->healthKitSync());
  EXPECT_EQ(row(), "export.xml");
  EXPECT_THAT(*state().weights, SizeIs(2));
  EXPECT_EQ(onDisk().weights, state().weights->elements());
  EXPECT_EQ(*state().statistics.addWeightLogState.weightInKg, 81) << "where the next one begins";
  EXPECT_EQ(*state().undo, std::nullopt);
  EXPECT_EQ(message().text, "");

  made("export.xml", healthExport({80, 81, 82}));
  appear();
  EXPECT_THAT(*state().weights, SizeIs(3));
  sendHealth(HealthFeature::Action::didUnlink{});
  EXPECT_TRUE(asksForAccess());
  EXPECT_FALSE(world.dependencies.userDefaults->healthKitSync());
  EXPECT_THAT(*state().weights, SizeIs(3));
}

TEST_F(HealthSteps, keepWhatThePersonDeletedAndOffersToTakeItBack) {
  link(made("export.xml", healthExport({80, 81})));
  send(Action::didDeleteWeight{state().weights->elements().front().id});
  made("export.xml", healthExport({80, 81, 82}));
  appear();
  ASSERT_THAT(*state().weights, SizeIs(2));
  EXPECT_EQ(state().weights->elements().front().weightInKg, 81);
  EXPECT_EQ(message(), (Message{"Weight deleted", "Undo", false, 6}));
  send(Action::didTapMessage{});
  EXPECT_THAT(*state().weights, SizeIs(3));
}

TEST_F(HealthSteps, sayTheSameFaultOnceAndKeepItInTheSheet) {
  const std::string path = made("export.xml", healthExport({80}));
  link(path);
  std::filesystem::remove(path);
  appear();
  const std::string gone = "The linked health file is no longer there: " + path;
  EXPECT_EQ(message().text, gone);
  EXPECT_EQ(row(), "Cannot be read");
  send(Action::didTapMessage{});
  appear();
  EXPECT_EQ(message().text, "");
  EXPECT_EQ(composeHealthSheet(state().health, pages.texts).fault, gone);
  EXPECT_THAT(*state().weights, SizeIs(1));
  link(path);
  EXPECT_EQ(message().text, gone) << "it was chosen again";
  made("export.xml", healthExport({}));
  appear();
  EXPECT_EQ(message().text, "There are no weights in the linked health file: " + path);
  EXPECT_EQ(row(), "export.xml");
}

class BackupSteps : public DataSteps {
 protected:
  BackupSteps() {
    for (std::uint64_t id = 1; id < 3; ++id) add(id);
    send(Action::reload{});
    send(Action::didOpen{Screen::backups});
  }
  void add(std::uint64_t id) const {
    openDatabase(file).apply(
        adding(BodyWeightSample{{1, id}, world.clock->now() - Duration{3600.0 * static_cast<double>(id)}, 80}));
  }
  std::vector<std::string> rows() const {
    std::vector<std::string> all;
    for (const BackupRow& row : backupsPage().rows) all.push_back(row.spoken);
    return all;
  }
};

TEST_F(BackupSteps, areMadeAtOnceAndListed) {
  EXPECT_EQ(backupsPage().listTitle, "");
  EXPECT_EQ(newestBackupText(state().backups, pages.at(world.clock->now())), "None");
  sendBackups(Backups::didTapBackUp{});
  EXPECT_EQ(message().text, "The backup is made.");
  sendBackups(Backups::didTapBackUp{});
  EXPECT_EQ(message().text, "Nothing has changed since the newest backup.");
  std::ofstream{data->backupPlace().folder() / "mivo-2026-06-01T030000Z.json"} << "{";
  send(Action::didOpen{Screen::statistics});
  send(Action::didOpen{Screen::settings});
  EXPECT_THAT(rows(), ElementsAre("Today, 12:00, 0 fasts, 2 weights", "06-01 03:00")) << "of a new one only the date";
  send(Action::didOpen{Screen::backups});
  EXPECT_THAT(rows(), ElementsAre("Today, 12:00, 0 fasts, 2 weights", "06-01 03:00, Cannot be read"));
  EXPECT_EQ(newestBackupText(state().backups, pages.at(world.clock->now())), "Today, 12:00");
  sendBackups(Backups::didChoose{1});
  EXPECT_EQ(openScreen(state()), Screen::backups) << "one that cannot be read cannot be gone back to";
}

TEST_F(BackupSteps, areGoneBackToAndUndone) {
  const History before = onDisk();
  sendBackups(Backups::didTapBackUp{});
  add(7);
  send(Action::reload{});
  const History after = onDisk();
  world.clock->date = world.clock->now() + Duration{60};
  sendBackups(Backups::didChoose{0});
  const RestoreSheet shown = composeRestoreSheet(state(), pages.at(world.clock->now()));
  EXPECT_EQ(openScreen(state()), Screen::restoring);
  EXPECT_EQ(shown.present, "0 fasts, 3 weights");
  EXPECT_EQ(shown.backup, "0 fasts, 2 weights");
  EXPECT_EQ(onDisk(), after) << "asked, not done";

  sendBackups(Backups::didTapRestore{});
  EXPECT_EQ(openScreen(state()), Screen::backups);
  EXPECT_EQ(onDisk(), before);
  EXPECT_EQ(state().weights->elements(), before.weights);
  EXPECT_THAT(rows(), ElementsAre("Today, 12:01, 0 fasts, 3 weights", "Today, 12:00, 0 fasts, 2 weights"));
  EXPECT_EQ(message(), (Message{"Backup restored", "Undo", false, 6}));
  send(Action::didTapMessage{});
  EXPECT_EQ(onDisk(), after);
  EXPECT_EQ(state().weights->elements(), after.weights);
}

TEST_F(BackupSteps, goToAFolderThatIsChosenAndBack) {
  const std::string usual = file.string() + ".backups", stick = folder.file("stick"),
                    chosen = stick + "/mivo.sqlite.backups";
  sendBackups(Backups::didTapBackUp{});
  const std::vector<std::string> before = rows();
  EXPECT_EQ(backupsPage().folder, usual);
  EXPECT_EQ(backupsPage().usualLabel, "");

  sendBackups(Backups::didChooseFolder{stick});
  EXPECT_EQ(message().text, "Backups cannot be kept in " + stick + ": No such file or directory");
  EXPECT_EQ(backupsPage().folder, usual);
  EXPECT_FALSE(backupsPage().isBusy);

  std::filesystem::create_directory(stick);
  sendBackups(Backups::didChooseFolder{stick});
  EXPECT_EQ(message().text, "Backups go to " + chosen + " from now on. Those made before stay in " + usual);
  EXPECT_EQ(backupsPage().folder, chosen);
  EXPECT_EQ(backupsPage().usualLabel, "Use the usual folder");
  EXPECT_THAT(rows(), IsEmpty());
  sendBackups(Backups::didTapBackUp{});
  EXPECT_THAT(rows(), SizeIs(1));
  EXPECT_EQ(BackupFolder{chosen}.backups().size(), 1U);

  std::filesystem::remove_all(stick);
  send(Action::didOpen{Screen::statistics});
  send(Action::didOpen{Screen::backups});
  EXPECT_EQ(backupsPage().folder, usual);
  EXPECT_EQ(backupsPage().fault, "Backups cannot go to " + stick +
                                     " at the moment (No such file or directory). Meanwhile they go to " + usual);
  EXPECT_EQ(rows(), before);
  sendBackups(Backups::didChooseFolder{});
  EXPECT_EQ(message().text, "Backups go to " + usual);
  EXPECT_EQ(backupsPage().fault, "");
  EXPECT_EQ(backupsPage().usualLabel, "");
}

TEST_F(BackupSteps, changeNothingWhereTheyHoldTheSameOrCannotBeRead) {
  sendBackups(Backups::didTapBackUp{});
  sendBackups(Backups::didChoose{0});
  sendBackups(Backups::didTapRestore{});
  EXPECT_EQ(message().text, "Your records are those of this backup already.");
  EXPECT_EQ(*state().undo, std::nullopt);
  sendBackups(Backups::didChoose{0});
  const History before = onDisk();
  std::ofstream{(*state().backups.chosen)->backup.file} << "{";
  sendBackups(Backups::didTapRestore{});
  EXPECT_NE(composeRestoreSheet(state(), pages.at(world.clock->now())).fault, "");
  EXPECT_EQ(openScreen(state()), Screen::restoring);
  EXPECT_EQ(onDisk(), before);
}

}  // namespace
}  // namespace mivo::host

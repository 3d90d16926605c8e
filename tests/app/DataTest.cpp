// SPDX-License-Identifier: MIT
// Bringing records along, taking them out and going back to backups, driven with clicks, keys and files that are
// dropped.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>
#include <QtGui/QImage>
#include <QtTest/QTest>
#include <fstream>
#include <sstream>
#include <system_error>

#include "host/disk/BackupFolder.h"
#include "host/disk/DatabaseFile.h"
#include "tests/app/ShownApp.h"
#include "tests/support/TemporaryFolder.h"

namespace mivo::app {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

/// The app on its own history, in a home of its own.
class Data : public testing::Test {
 protected:
  Data() {
    qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder.file("config")));
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(folder.file("data")));
    open();
  }
  ~Data() override { qunsetenv("XDG_DATA_HOME"); }

  void open() {
    app.reset();
    Options options = ShownApp::optionsFor("");
    options.tab = "settings";
    app = std::make_unique<ShownApp>(options, QSize{390, 1400});
  }

  QString made(const std::string& name, const std::string& content) const {
    std::ofstream{folder.file(name), std::ios::binary} << content;
    return QString::fromStdString(folder.file(name));
  }

  /// As the desktop does it: over the window, then let go.
  void drop(const QString& path) {
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(path)});
    const QPoint middle{195, 300};
    QDragEnterEvent enter{middle, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier};
    QCoreApplication::sendEvent(&app->window(), &enter);
    isHeld = app->text("Drop files to import them") != nullptr;
    QDropEvent let{middle, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier};
    QCoreApplication::sendEvent(&app->window(), &let);
    settle(app->window());
  }

  void clickRow(const QString& text) {
    const QQuickItem* row = app->find([&](const QQuickItem* item) {
      return item->property("text").toString() == text && item->inherits("QQuickAbstractButton");
    });
    ASSERT_NE(row, nullptr) << text.toStdString();
    app->click(row);
  }

  /// Answers the dialog that is open, which Qt draws itself where the display has none.
  void answerDialog(const QString& path, bool isFolder = false) {
    QObject* dialog = nullptr;
    ASSERT_TRUE(eventually([&] {
      for (QObject* one : app->window().findChildren<QObject*>())
        if (one->inherits(isFolder ? "QQuickFolderDialogImpl" : "QQuickFileDialogImpl") &&
            one->property("visible").toBool())
          dialog = one;
      return dialog != nullptr;
    }));
    dialog->setProperty(isFolder ? "selectedFolder" : "selectedFile", QUrl::fromLocalFile(path));
    QMetaObject::invokeMethod(dialog, "accept");
    app->window().requestActivate();  // as a desktop does when a dialog with a window of its own has closed
    settle(app->window());
  }

  void bring(const char* name, const char* button, const char* content) {
    drop(made(name, content));
    ASSERT_TRUE(eventually([&] { return app->button(button) != nullptr; }));
    app->click(button);
    ASSERT_TRUE(eventually([&] { return !app->state().importing; }));
    settle(app->window());
  }

  bool eventuallySays(const QString& text) {
    return eventually([&] { return app->text(text) != nullptr; });
  }
  host::History onDisk() const {
    return host::openDatabase(app->environment.databaseFile, host::Database::Access::readOnly).history();
  }
  std::vector<host::Backup> backups() const {
    return host::BackupFolder{host::backupFolder(app->environment.databaseFile)}.backups();
  }

  static constexpr const char* twoFasts =
      "start,end\n2026-02-25T20:00Z,2026-02-26T12:00Z\n2026-02-26T20:00Z,2026-02-27T12:00Z\nsoon,\n";

  tests::TemporaryFolder folder;
  bool isHeld = false;
  std::unique_ptr<ShownApp> app;
};

TEST_F(Data, areBroughtAlongFromFilesThatAreDropped) {
  const QString path = made("fasts.csv", twoFasts);
  app->key(Qt::Key_2, Qt::ControlModifier);
  drop(path);
  EXPECT_TRUE(isHeld);
  ASSERT_TRUE(eventuallySays("2 new fasts, 1 refused")) << "wherever one is";
  EXPECT_NE(app->text("fasts.csv, line 4, start"), nullptr);
  EXPECT_TRUE(onDisk().fasts.empty()) << "shown, not done";
  app->click("Cancel");
  EXPECT_EQ(openScreen(app->state()), host::Screen::settings);
  EXPECT_TRUE(onDisk().fasts.empty());

  drop(path);
  ASSERT_TRUE(eventually([&] { return app->button("Import 2 fasts") != nullptr; }));
  app->click("Import 2 fasts");
  ASSERT_TRUE(eventuallySays("Imported: 2 fasts"));
  EXPECT_THAT(onDisk().fasts, SizeIs(2));
  EXPECT_THAT(*app->state().fasts, SizeIs(2));
  settle(app->window());
  app->click("Undo");
  EXPECT_TRUE(eventually([&] { return app->state().fasts->empty(); }));
  EXPECT_TRUE(onDisk().fasts.empty());
}

TEST_F(Data, areTypedSeveralFastsAtOnce) {
  app->app.model().present("addFast");
  settle(app->window());
  app->click("Several at once");
  ASSERT_TRUE(eventuallySays("Add several fasts"));
  EXPECT_FALSE(app->button("Add fasts")->isEnabled());
  app->type("25.2.2026 20:00 - 12:00");
  app->key(Qt::Key_Return);
  app->type("26.2.2026 20:00, 16h");
  app->key(Qt::Key_Return);
  app->type("soon");
  EXPECT_NE(app->text("2 new fasts, 1 refused"), nullptr);
  EXPECT_NE(app->text("line 3"), nullptr);
  app->key(Qt::Key_Escape);
  EXPECT_EQ(openScreen(app->state()), host::Screen::fasting);
  EXPECT_TRUE(onDisk().fasts.empty()) << "shown, not done";

  app->app.model().present("severalFasts");
  settle(app->window());
  app->type("25.2.2026 20:00 - 12:00");
  app->key(Qt::Key_Tab);
  app->key(Qt::Key_Space);
  ASSERT_TRUE(eventuallySays("Added: 1 fast"));
  EXPECT_THAT(onDisk().fasts, SizeIs(1));
  settle(app->window());
  app->click("Undo");
  EXPECT_TRUE(eventually([&] { return app->state().fasts->empty(); }));
  EXPECT_TRUE(onDisk().fasts.empty());
}

TEST_F(Data, areChosenAskedForAndTakenOutInTheDialogsOfTheSystem) {
  clickRow("Import");
  app->click("Choose files");
  answerDialog(made("weights.csv", "date,weight\n2026-02-25 07:00,80\n2026-02-26 07:00,79.5\n"));
  ASSERT_TRUE(eventuallySays("weights.csv does not say in which unit its weights are."));
  app->click("Kilograms");
  ASSERT_TRUE(eventually([&] { return app->button("Import 2 weights") != nullptr; }));
  app->key(Qt::Key_Escape);
  EXPECT_EQ(openScreen(app->state()), host::Screen::settings);
  EXPECT_TRUE(onDisk().weights.empty());

  drop(made("weights.csv", "date,weight_kg\n2026-02-25T07:00Z,80\n"));
  ASSERT_TRUE(eventually([&] { return app->button("Import 1 weight") != nullptr; }));
  app->click("Import 1 weight");
  ASSERT_TRUE(eventually([&] { return app->state().weights->size() == 1; }));
  settle(app->window());
  clickRow("Export");
  clickRow("Weights");
  answerDialog(QString::fromStdString(folder.file("out.csv")));
  ASSERT_TRUE(eventuallySays(QString::fromStdString("Exported to " + folder.file("out.csv") + ": 1 weight")));
  std::ostringstream written;
  written << std::ifstream{folder.file("out.csv")}.rdbuf();
  EXPECT_EQ(written.str(), "date,weight_kg\n2026-02-25T07:00:00Z,80\n");
  drop(QString::fromStdString(folder.file("out.csv")));
  EXPECT_TRUE(eventuallySays("1 there already"));
}

TEST_F(Data, areDrawnOntoPagesWithTheWeightsOnlyWhereThatIsSwitchedOn) {
  drop(made("weights.csv", "date,weight_kg\n2026-02-25T07:00Z,80\n2026-02-26T07:00Z,79\n"));
  ASSERT_TRUE(eventually([&] { return app->button("Import 2 weights") != nullptr; }));
  app->click("Import 2 weights");
  ASSERT_TRUE(eventually([&] { return app->state().weights->size() == 2; }));
  settle(app->window());
  const auto sizeOf = [&](const char* row, const std::string& name) {
    clickRow("Export");
    if (name.starts_with("with")) clickRow("Weights on pages and picture");
    clickRow(row);
    answerDialog(QString::fromStdString(folder.file(name)));
    EXPECT_TRUE(eventuallySays(QString::fromStdString("Exported to " + folder.file(name))));
    settle(app->window());
    return std::filesystem::file_size(folder.file(name));
  };
  const auto without = sizeOf("Statistics as a picture", "out.png");
  EXPECT_GT(sizeOf("Statistics as a picture", "with.png"), without);
  sizeOf("Statistics on pages", "out.pdf");
  std::string begin(4, ' ');
  std::ifstream{folder.file("out.pdf")}.read(begin.data(), 4);
  EXPECT_EQ(begin, "%PDF");
}

TEST_F(Data, comeFromTheHealthExportThatAccessIsAllowedTo) {
  const auto exported = [](const std::string& records) {
    return "<?xml version=\"1.0\"?>\n<HealthData locale=\"en_GB\">\n" + records + "</HealthData>\n";
  };
  const auto mass = [](const std::string& day, const std::string& kilograms) {
    return "<Record type=\"HKQuantityTypeIdentifierBodyMass\" unit=\"kg\" startDate=\"2026-02-" + day +
           " 07:00:00 +0100\" value=\"" + kilograms + "\"/>\n";
  };
  const QString path = made("export.xml", exported(mass("25", "80") + mass("26", "79.5")));
  app->key(Qt::Key_2, Qt::ControlModifier);
  app->click("Allow access");
  answerDialog(path);
  ASSERT_TRUE(eventually([&] { return app->state().weights->size() == 2; }));
  settle(app->window());
  EXPECT_EQ(app->button("Allow access"), nullptr);
  EXPECT_THAT(onDisk().weights, SizeIs(2));

  made("export.xml", exported(mass("25", "80") + mass("26", "79.5") + mass("27", "79")));
  app->key(Qt::Key_3, Qt::ControlModifier);
  EXPECT_THAT(*app->state().weights, SizeIs(2));
  EXPECT_NE(app->text("export.xml"), nullptr) << "the settings name it";
  app->key(Qt::Key_2, Qt::ControlModifier);
  EXPECT_TRUE(eventually([&] { return app->state().weights->size() == 3; }));

  app->key(Qt::Key_3, Qt::ControlModifier);
  clickRow("Health data");
  app->click("Choose another file");
  answerDialog(made("phone.xml", exported(mass("28", "78"))));
  EXPECT_TRUE(eventually([&] { return app->state().weights->size() == 4; }));
  app->click("Unlink");
  EXPECT_EQ(app->button("Unlink"), nullptr);
  app->key(Qt::Key_Escape);
  open();
  app->key(Qt::Key_2, Qt::ControlModifier);
  EXPECT_TRUE(eventually([&] { return app->button("Allow access") != nullptr; }));
  EXPECT_THAT(*app->state().weights, SizeIs(4));
}

TEST_F(Data, areBackedUpBeforeTheFirstChangeOfADayAndGoneBackTo) {
  bring("fasts.csv", "Import 2 fasts", twoFasts);
  EXPECT_THAT(backups(), SizeIs(0)) << "there was nothing";
  bring("weights.csv", "Import 1 weight", "date,weight_kg\n2026-02-25T07:00Z,80\n");
  ASSERT_THAT(backups(), SizeIs(1));
  bring("more.csv", "Import 1 weight", "date,weight_kg\n2026-02-26T07:00Z,80\n");
  ASSERT_THAT(backups(), SizeIs(1)) << "one a day";
  const host::History all = onDisk();
  EXPECT_THAT(all.weights, SizeIs(2));

  clickRow("Backups");
  ASSERT_TRUE(eventuallySays("2 fasts, 0 weights"));
  clickRow("Today, 13:00");
  EXPECT_NE(app->text("2 fasts, 2 weights"), nullptr);
  app->click("Cancel");
  EXPECT_EQ(onDisk(), all);
  clickRow("Today, 13:00");
  app->click("Restore");
  ASSERT_TRUE(eventuallySays("Backup restored"));
  EXPECT_TRUE(onDisk().weights.empty());
  EXPECT_TRUE(app->state().weights->empty());
  EXPECT_THAT(backups(), SizeIs(2)) << "with what was there before";
  settle(app->window());
  app->click("Undo");
  EXPECT_TRUE(eventually([&] { return app->state().weights->size() == 2; }));
  EXPECT_EQ(onDisk(), all);
  app->click("Back up now");
  EXPECT_TRUE(eventually([&] { return !app->model().failure().isEmpty(); }));

  const QString stick = QString::fromStdString(folder.file("stick"));
  std::filesystem::create_directory(folder.file("stick"));
  clickRow("Change folder");
  answerDialog(stick, true);
  ASSERT_TRUE(eventuallySays(stick + "/mivo.sqlite.backups"));
  EXPECT_EQ(app->text("Today, 13:00"), nullptr) << "those of another folder";
  app->click("Back up now");
  EXPECT_TRUE(eventuallySays("The backup is made."));
  EXPECT_THAT(host::BackupFolder{stick.toStdString() + "/mivo.sqlite.backups"}.backups(), SizeIs(1));
  clickRow("Use the usual folder");
  EXPECT_TRUE(eventuallySays(QString::fromStdString(app->environment.databaseFile.string() + ".backups")));
  EXPECT_EQ(app->text("Use the usual folder"), nullptr);
}

TEST_F(Data, areBackedUpBesideTheHistoryAndSaidSoWhileTheChosenFolderIsMissing) {
  const std::string gone = folder.file("gone"), beside = app->environment.databaseFile.string() + ".backups";
  app->environment.dependencies->userDefaults->setValue(host::backupFolderKey, gone);
  bring("fasts.csv", "Import 2 fasts", twoFasts);
  bring("weights.csv", "Import 1 weight", "date,weight_kg\n2026-02-25T07:00Z,80\n");
  EXPECT_THAT(backups(), SizeIs(1));
  const std::string why = std::make_error_code(std::errc::no_such_file_or_directory).message();
  EXPECT_NE(app->text(QString::fromStdString("Backups cannot go to " + gone + " at the moment (" + why +
                                             "). Meanwhile they go to " + beside)),
            nullptr);
}

struct PrintedRow {
  const char* name;
  bool withWeights;
  const char* pages;
};
void PrintTo(const PrintedRow& row, std::ostream* out) { *out << row.name; }
class PrintedStatistics : public testing::TestWithParam<PrintedRow> {};

TEST_P(PrintedStatistics, areOnPagesAndAPictureWithWeightsWhereAskedFor) {
  const tests::TemporaryFolder folder;
  Options options = ShownApp::optionsFor(MIVO_DATA_FOLDER "/one-year.json");
  options.range = "month";
  options.printed = folder.file("statistics.PDF");
  options.withWeights = GetParam().withWeights;
  options = asPrinted(options);
  ShownApp app{options, {744, 1052}};
  EXPECT_EQ(*app.statistics().timeRange, TimeRange::month);
  EXPECT_EQ(app.ofType("WeightChartCard") != nullptr, options.withWeights);
  EXPECT_EQ(app.ofType("AddWeightCard"), nullptr) << "nothing that asks to be tapped";
  ASSERT_EQ(drawInto(app.app, options), std::nullopt);
  std::ostringstream document;
  document << std::ifstream{options.printed}.rdbuf();
  EXPECT_THAT(document.str(), AllOf(StartsWith("%PDF"), HasSubstr(GetParam().pages)));

  options.printed = folder.file("statistics.png");
  ASSERT_EQ(drawInto(app.app, options), std::nullopt);
  const QImage picture{QString::fromStdString(options.printed)};
  EXPECT_EQ(picture.width(), 744);
  EXPECT_EQ(picture.pixelColor(0, picture.height() - 1), picture.pixelColor(0, 0)) << "it ends with the last card";
  options.printed = folder.file("none/statistics.png");
  EXPECT_THAT(drawInto(app.app, options).value_or(""), HasSubstr("none/statistics.png"));
}

INSTANTIATE_TEST_SUITE_P(Rows, PrintedStatistics,
                         testing::Values(PrintedRow{"hidden", false, "/Count 2"},
                                         PrintedRow{"shown", true, "/Count 3"}),
                         [](const auto& row) { return std::string{row.param.name}; });

}  // namespace
}  // namespace mivo::app

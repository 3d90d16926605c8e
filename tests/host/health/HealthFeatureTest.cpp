// SPDX-License-Identifier: MIT
#include "host/health/HealthFeature.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <ostream>
#include <sstream>

#include "adapters/standard/LocalUUIDGenerator.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/database/DatabaseHistory.h"
#include "host/disk/DatabaseFile.h"
#include "host/files/FilesOnDisk.h"
#include "mivo/store/Store.h"
#include "tests/support/FullDisk.h"
#include "tests/support/Instants.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestWorld.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;
using Action = HealthFeature::Action;

/// A body mass of that minute of 1 March 2026, "07:00" or "07:00:30".
std::string mass(const std::string& time, double kilograms) {
  std::ostringstream record;
  record << R"( <Record type="HKQuantityTypeIdentifierBodyMass" unit="kg" startDate="2026-03-01 )"
         << (time.size() == 5 ? time + ":00" : time) << R"( +0000" value=")" << kilograms << "\"/>\n";
  return record.str();
}

std::string exportOf(const std::vector<std::string>& records) {
  std::string all = "<?xml version=\"1.0\"?>\n<HealthData locale=\"en_GB\">\n";
  for (const std::string& record : records) all += record;
  return all + "</HealthData>\n";
}

class Linked {
 public:
  Linked() { write("export.xml", exportOf({mass("07:00", 80), mass("08:00", 81)})); }

  void write(const std::string& name, const std::string& content) const {
    std::ofstream{folder.file(name), std::ios::binary} << content;
    setModified(name, ++clock);
  }
  /// Two writes within one tick of the file system's clock would look alike.
  void setModified(const std::string& name, long nanoseconds) const {
    const timespec times[] = {{1'772'000'000, 0}, {1'772'000'000, nanoseconds}};
    ASSERT_EQ(::utimensat(AT_FDCWD, folder.file(name).c_str(), times, 0), 0);
  }
  void link(const std::string& name) { send(Action::didLink{folder.file(name)}); }
  void appear() { send(Action::onAppear{}); }
  void send(Action action) {
    app.send(std::move(action));
    settle();
  }
  void settle() {
    do {
      world.tasks->runAll();
      world.queue->runAll();
    } while (world.tasks->count() > 0);
  }

  void apply(const HistoryChange& change) const { history->apply(change); }
  BodyWeightSample weightAt(std::size_t index) const { return history->load().weights.at(index); }
  void remove(std::size_t index) const { apply(removing(weightAt(index))); }
  void edit(std::size_t index, double kilograms) const {
    BodyWeightSample after = weightAt(index);
    after.weightInKg = kilograms;
    apply(replacing(weightAt(index), after));
  }

  /// "07:00 80, 08:00 81"
  std::string weights() const {
    std::ostringstream text;
    for (const BodyWeightSample& sample : history->load().weights)
      text << (text.tellp() == 0 ? "" : ", ") << tests::text(sample.date).substr(11, 5) << ' ' << sample.weightInKg;
    return text.str();
  }
  std::string fault() const { return state().fault->empty() ? *state().notice : *state().fault; }
  const HealthFeature::State& state() const { return app.state(); }

  tests::TemporaryFolder folder;
  mutable long clock = 0;
  tests::TestWorld world;
  DependencyScope scope = world.enter();
  fs::path database = folder.path / "mivo.sqlite";
  std::shared_ptr<const DatabaseHistory> history = std::make_shared<DatabaseHistory>(openDatabase(database));
  std::shared_ptr<const LinkedHealthClient> client =
      std::make_shared<LinkedHealthClient>(world.dependencies.userDefaults);
  std::shared_ptr<const DataFiles> files =
      std::make_shared<FilesOnDisk>(FilesOnDisk::Place{.database = database,
                                                       .zone = [] { return adapters::loadTimeZone("UTC").value(); },
                                                       .settings = [] { return std::vector<Setting>{}; },
                                                       .ids = std::make_shared<adapters::LocalUUIDGenerator>(),
                                                       .defaults = world.dependencies.userDefaults});
  Store<HealthFeature> app{HealthFeature::State{}, HealthFeature{client, files, history, world.dependencies.texts},
                           world.queue, world.tasks};
};

const std::string three = exportOf({mass("07:00", 80), mass("08:00", 81), mass("09:00", 82)});

struct SyncRow {
  const char* name;
  std::function<void(Linked&)> steps;  // after the file with two weights was linked, before the next appearing
  std::string weights, fault = {};     // how the fault begins; none where it is empty
};
void PrintTo(const SyncRow& row, std::ostream* out) { *out << row.name; }
class Syncs : public testing::TestWithParam<SyncRow> {};

TEST_P(Syncs, bringWhatIsNewInTheLinkedFile) {
  Linked linked;
  linked.link("export.xml");
  ASSERT_EQ(linked.weights(), "07:00 80, 08:00 81");
  GetParam().steps(linked);
  linked.appear();
  EXPECT_EQ(linked.weights(), GetParam().weights);
  if (GetParam().fault.empty())
    EXPECT_EQ(linked.fault(), "");
  else
    EXPECT_THAT(linked.fault(), StartsWith(GetParam().fault));
  EXPECT_FALSE(linked.state().reading);
  EXPECT_FALSE(*linked.state().isWriting);
}

void replaceByRenaming(const Linked& linked, const std::string& content) {
  linked.write("new.xml", content);
  linked.setModified("new.xml", linked.clock - 1);
  fs::rename(linked.folder.file("new.xml"), linked.folder.file("export.xml"));
}

const std::string unreadable = "The linked health file cannot be read: ";

INSTANTIATE_TEST_SUITE_P(
    Rows, Syncs,
    testing::Values(
        SyncRow{"nothingHappened", [](Linked&) {}, "07:00 80, 08:00 81"},
        SyncRow{"moreInIt", [](Linked& l) { l.write("export.xml", three); }, "07:00 80, 08:00 81, 09:00 82"},
        SyncRow{"olderOnesThatComeLate",
                [](Linked& l) { l.write("export.xml", exportOf({mass("06:00", 79), mass("08:00", 81)})); },
                "06:00 79, 07:00 80, 08:00 81"},
        SyncRow{"sameStateIsNotReadAgain",
                [](Linked& l) {
                  l.write("export.xml", exportOf({mass("07:00", 80), mass("09:00", 81)}));
                  l.setModified("export.xml", 1);
                },
                "07:00 80, 08:00 81"},
        SyncRow{"aNanosecondLater",
                [](Linked& l) {
                  l.write("export.xml", exportOf({mass("07:00", 80), mass("09:00", 81)}));
                  l.setModified("export.xml", 2);
                },
                "07:00 80, 08:00 81, 09:00 81"},
        SyncRow{"anotherSizeAtTheSameTime",
                [](Linked& l) {
                  l.write("export.xml", three);
                  l.setModified("export.xml", 1);
                },
                "07:00 80, 08:00 81, 09:00 82"},
        SyncRow{"anotherFileOfThatNameAndSizeAndTime",
                [](Linked& l) { replaceByRenaming(l, exportOf({mass("07:00", 80), mass("09:00", 81)})); },
                "07:00 80, 08:00 81, 09:00 81"},
        SyncRow{"deletedStaysDeleted",
                [](Linked& l) {
                  l.remove(0);
                  l.write("export.xml", three);
                },
                "08:00 81, 09:00 82"},
        SyncRow{"editedStaysEdited",
                [](Linked& l) {
                  l.edit(1, 75);
                  l.write("export.xml", three);
                },
                "07:00 80, 08:00 75, 09:00 82"},
        SyncRow{"deletedStaysSoWhenAFileLacksItInBetween",
                [](Linked& l) {
                  l.remove(0);
                  l.write("export.xml", exportOf({mass("08:00", 81)}));
                  l.appear();
                  l.write("export.xml", three);
                },
                "08:00 81, 09:00 82"},
        SyncRow{"deletedBeforeASecondFileTellsItToo",
                [](Linked& l) {
                  l.remove(0);
                  l.write("other.xml", three);
                  l.link("other.xml");
                  l.link("export.xml");
                },
                "08:00 81, 09:00 82"},
        SyncRow{"anotherSourceOfTheSameMinute",
                [](Linked& l) { l.write("export.xml", exportOf({mass("07:00:40", 80.005), mass("08:00", 81.02)})); },
                "07:00 80, 08:00 81, 08:00 81.02"},
        SyncRow{"typedByHandBefore",
                [](Linked& l) {
                  l.apply(adding(BodyWeightSample{{5, 5}, tests::utc("2026-03-01 09:00"), 82}));
                  l.write("export.xml", three);
                },
                "07:00 80, 08:00 81, 09:00 82"},
        SyncRow{"typedByHandBeforeAndDeletedSince",
                [](Linked& l) {
                  l.apply(adding(BodyWeightSample{{5, 5}, tests::utc("2026-03-01 09:00"), 82}));
                  l.write("export.xml", three);
                  l.appear();
                  l.remove(2);
                  l.write("export.xml", three + "\n");
                },
                "07:00 80, 08:00 81"},
        SyncRow{"unlinked",
                [](Linked& l) {
                  l.send(Action::didUnlink{});
                  l.write("export.xml", three);
                },
                "07:00 80, 08:00 81"},
        SyncRow{"truncated", [](Linked& l) { l.write("export.xml", three.substr(0, three.size() - 20)); },
                "07:00 80, 08:00 81", unreadable},
        SyncRow{"truncatedThenWhole",
                [](Linked& l) {
                  l.write("export.xml", three.substr(0, three.size() - 20));
                  l.appear();
                  l.write("export.xml", three);
                },
                "07:00 80, 08:00 81, 09:00 82"},
        SyncRow{"empty", [](Linked& l) { l.write("export.xml", ""); }, "07:00 80, 08:00 81", unreadable},
        SyncRow{"noHealthExport", [](Linked& l) { l.write("export.xml", "date,weight\n2026-03-01,80\n"); },
                "07:00 80, 08:00 81", unreadable},
        SyncRow{"aTableOfWeights", [](Linked& l) { l.write("export.xml", "date,weight_kg\n2026-03-01,80\n"); },
                "07:00 80, 08:00 81", unreadable},
        SyncRow{"gone", [](Linked& l) { fs::remove(l.folder.file("export.xml")); }, "07:00 80, 08:00 81",
                "The linked health file is no longer there: "},
        SyncRow{"goneAndBack",
                [](Linked& l) {
                  fs::rename(l.folder.file("export.xml"), l.folder.file("away.xml"));
                  l.appear();
                  fs::rename(l.folder.file("away.xml"), l.folder.file("export.xml"));
                },
                "07:00 80, 08:00 81"},
        SyncRow{"aFolder",
                [](Linked& l) {
                  fs::remove(l.folder.file("export.xml"));
                  fs::create_directory(l.folder.file("export.xml"));
                },
                "07:00 80, 08:00 81", unreadable},
        SyncRow{"noWeights", [](Linked& l) { l.write("export.xml", exportOf({})); }, "07:00 80, 08:00 81",
                "There are no weights in the linked health file: "},
        SyncRow{"aWeightThatIsNone",
                [](Linked& l) { l.write("export.xml", exportOf({mass("09:00", 82), mass("10:00", 8200)})); },
                "07:00 80, 08:00 81, 09:00 82", "Not all weights of the linked health file were taken: "}),
    [](const auto& row) { return std::string{row.param.name}; });

TEST(HealthFeature, namesFileLineAndWhatWasExpected) {
  Linked linked;
  linked.write("export.xml", three.substr(0, three.size() - 20));
  linked.link("export.xml");
  EXPECT_EQ(linked.fault(),
            unreadable + linked.folder.file("export.xml") + ":5: expected </HealthData>, found the end of the file");
  linked.write("notes.txt", "milk\n");
  linked.link("notes.txt");
  EXPECT_EQ(linked.fault(),
            unreadable + linked.folder.file("notes.txt") + ": expected a health export, as XML or in its zip");
}

TEST(HealthFeature, leavesTheUsersLastStepToBeUndone) {
  Linked linked;
  linked.apply(adding(BodyWeightSample{{5, 5}, tests::utc("2026-03-01 05:00"), 82}));
  linked.link("export.xml");
  openDatabase(linked.database).undo();
  EXPECT_EQ(linked.weights(), "07:00 80, 08:00 81");
}

// On a disk that is full, and then is not.
TEST(HealthFeature, remembersNothingOfWhatItCouldNotWrite) {
  Linked linked;
  {
    const tests::FullDisk full;
    linked.link("export.xml");
  }
  EXPECT_THAT(linked.fault(), HasSubstr("the disk is full"));
  EXPECT_EQ(linked.weights(), "");
  linked.appear();
  EXPECT_EQ(linked.weights(), "07:00 80, 08:00 81");
  EXPECT_EQ(linked.fault(), "");
}

TEST(HealthFeature, endsReadingOnceTheFileIsLetGoOrAnotherIsLinked) {
  Linked linked;
  linked.write("other.xml", exportOf({mass("09:00", 82)}));
  linked.app.send(Action::didLink{linked.folder.file("export.xml")});
  linked.app.send(Action::didLink{linked.folder.file("other.xml")});
  linked.settle();
  EXPECT_EQ(linked.weights(), "09:00 82");
  linked.app.send(Action::didLink{linked.folder.file("export.xml")});
  linked.world.tasks->runAll();  // read, and not yet told
  linked.send(Action::didUnlink{});
  EXPECT_EQ(linked.weights(), "09:00 82");
  EXPECT_EQ(*linked.state().file, "");
}

TEST(HealthFeature, readsTheFileThatWasLinkedWhileAnotherOneWasWritten) {
  Linked linked;
  linked.write("other.xml", exportOf({mass("09:00", 82)}));
  linked.app.send(Action::didLink{linked.folder.file("export.xml")});
  linked.world.tasks->runAll();
  linked.world.queue->runAll();
  ASSERT_TRUE(*linked.state().isWriting);
  linked.send(Action::didLink{linked.folder.file("other.xml")});
  EXPECT_EQ(linked.weights(), "07:00 80, 08:00 81, 09:00 82");
}

TEST(HealthFeature, readsOnceAtATimeAndStopsWhenItIsToldTo) {
  Linked linked;
  std::vector<std::string> many;
  for (int record = 0; record < 2000; ++record) many.push_back(mass("07:00", 60 + record * 0.05));
  linked.write("export.xml", exportOf(many));
  StopSource stop;
  int told = 0;
  const auto read = readLinkedHealth(
      linked.folder.file("export.xml"), std::nullopt, *linked.files,
      [&](double) {
        ++told;
        stop.requestStop();
      },
      stop.token());
  EXPECT_EQ(told, 1);
  EXPECT_FALSE(read);

  linked.app.send(Action::didLink{linked.folder.file("export.xml")});
  linked.app.send(Action::onAppear{});
  EXPECT_EQ(linked.world.tasks->count(), 1u);
}

}  // namespace
}  // namespace mivo::host

// SPDX-License-Identifier: MIT
// recordPages FOLDER: prints what `Frontend` says of three weeks from the folder of samples: {"pages": {...}, "lists":
// {...}}. Every sheet was open once, so that it is there as it was last.
#include <array>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include "adapters/icu/LanguageWords.h"
#include "adapters/icu/LocaleFormatters.h"
#include "adapters/json/NlohmannDecoder.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "host/database/DatabaseHistory.h"
#include "host/disk/DatabaseFile.h"
#include "host/disk/TextFile.h"
#include "host/donations/DonationList.h"
#include "host/files/FilesOnDisk.h"
#include "host/frontend/Frontend.h"
#include "host/frontend/Pages.h"
#include "host/history/Snapshot.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TestWorld.h"

namespace mivo::host {
namespace {

constexpr double now = 1772366400;  // noon of 1 March 2026 in UTC, when the sample ends
constexpr std::size_t mostRows = 2000;

std::string text(const std::string& file) {
  auto read = readTextFile(file);
  if (!read) throw std::runtime_error{describe(read.error())};
  return *std::move(read);
}

struct CountingNumbers : RandomNumberGenerator {
  std::uint64_t next() const override { return ++last; }
  mutable std::uint64_t last = 0;
};

/// Standard output is for the pages.
struct NoLog final : LogOutput {
  void print(std::string_view) const override {}
};

/// Serves the roadmap, and twelve votes for each of its features.
struct RoadmapServer final : URLSession {
  explicit RoadmapServer(std::string text) : roadmap{std::move(text)} {}
  void data(std::string_view url, StopToken, Completion<std::string> completion) const override {
    completion(url.ends_with("roadmap-mivo.json") ? roadmap : std::string{R"({"value": 12})"});
  }
  std::string roadmap;
};

struct Sample {
  explicit Sample(const std::string& samples) : folder{samples} {
    const auto locale = adapters::UserLocale::parse("en-GB").value();
    const auto zoned = adapters::ZonedCalendar::gregorian(adapters::loadTimeZone("Europe/Berlin").value(), 2);
    auto& clients = world.dependencies;
    world.clock->date = dateSince1970(now);
    calendar = std::make_shared<WeekCalendar>(*zoned);
    clients.calendar = clients.currentCalendar = calendar;
    adapters::makeFormatters(locale, *zoned).fill(clients);
    clients.languageTag = "en";
    clients.random = std::make_shared<CountingNumbers>();
    clients.jsonDecoder = std::make_shared<adapters::NlohmannDecoder>();
    clients.bundleIdentifier = "mivo";
    clients.log = std::make_shared<NoLog>();
    clients.urlSession = std::make_shared<RoadmapServer>(text(folder + "/roadmap-mivo.json"));
    clients.servers = {.tally = "https://mivo.example", .roadmap = "https://mivo.example"};
    clients.donations = std::make_shared<DonationList>(
        folder + "/donations.json",
        DonationList::Tools{
            .session = {}, .decoder = clients.jsonDecoder, .texts = clients.texts, .languageTag = "en"});
    health = std::make_shared<LinkedHealthClient>(clients.userDefaults, true);
    clients.healthKitClient = health;
    tips = std::make_shared<Tips>(clients.userDefaults);
    clients.tips = tips;
  }

  /// With the records of the sample.
  FrontendServices services() const {
    const auto& clients = world.dependencies;
    const std::string name = folder + "/three-weeks.json";
    auto history = readSnapshot(text(name), name, *clients.uuid);
    if (!history) throw std::runtime_error{describe(history.error())};
    Database database = openDatabase(file);
    HistoryChange change;
    change.addedFasts = std::move(history->fasts);
    change.addedWeights = std::move(history->weights);
    database.apply(change);
    return {.dependencies = std::make_shared<const Dependencies>(clients),
            .history = std::make_shared<DatabaseHistory>(std::move(database)),
            .files = std::make_shared<FilesOnDisk>(FilesOnDisk::Place{
                .database = file,
                .zone = [calendar = calendar] { return calendar->present().zone(); },
                .settings = [] { return std::vector<Setting>{}; },
                .ids = clients.uuid,
                .words =
                    [] {
                      return std::make_shared<const TypedDateWords>(
                          typedDateWords(adapters::dateWords(adapters::UserLocale::parse("en-GB").value())));
                    },
                .defaults = clients.userDefaults}),
            .health = health,
            .tips = tips,
            .calendar = calendar,
            .usualWeightUnit = WeightUnit::kilograms,
            .feedbackAddress = "ideas@mivo.example",
            .about = {.version = "1.2.3", .databaseFile = "", .exportCommand = ""}};
  }

  std::string folder;
  tests::TestWorld world;
  tests::TemporaryFolder place;
  std::filesystem::path file = place.path / "mivo.sqlite";
  std::shared_ptr<WeekCalendar> calendar;
  std::shared_ptr<LinkedHealthClient> health;
  std::shared_ptr<Tips> tips;
};

/// Every page as it is, so that a sheet that closes is known as it was last.
void ask(Frontend& frontend) {
  std::apply([&](const auto&... page) { (frontend.page(page.name), ...); }, pages);
}

void send(Frontend& frontend, const Sample& sample, std::string_view action) {
  if (const auto done = frontend.send(action); !done)
    throw std::runtime_error{std::string{action} + ": " + done.error()};
  do {
    sample.world.tasks->runAll();
    sample.world.queue->runAll();
  } while (sample.world.tasks->count() > 0);
  ask(frontend);
}

constexpr std::array<std::string_view, 24> steps{R"("didGoBack")",
                                                 R"({"didSeeFastingBars": {"first": 15, "last": 22}})",
                                                 R"({"didSeeEatingBars": {"first": 15, "last": 22}})",
                                                 R"({"goalChoice": {"didBegin": 57600}})",
                                                 R"({"dateChoice": {"didBegin": 1772319600}})",
                                                 R"({"didTapFast": 0})",
                                                 R"("didDismissDraft")",
                                                 R"({"didTapWeight": 0})",
                                                 R"("didGoBack")",
                                                 R"({"didOpen": "badges"})",
                                                 R"({"didOpen": "donations"})",
                                                 R"("didGoBack")",
                                                 R"({"didOpen": "roadmap"})",
                                                 R"({"didOpen": "overlaps"})",
                                                 R"("didCancelOverlapRepair")",
                                                 R"({"didOpen": "severalFasts"})",
                                                 R"({"didTypeFasts": "2026-01-02 20:00 - 2026-01-03 12:00"})",
                                                 R"("didGoBack")",
                                                 R"({"didOpen": "backups"})",
                                                 R"({"backups": "didTapBackUp"})",
                                                 R"({"backups": {"didChoose": 0}})",
                                                 R"({"backups": "didDismiss"})",
                                                 R"("didDismissMessages")",
                                                 R"({"didOpen": "statistics"})"};

// Opens everything once, and goes back to the statistics.
void openAll(Frontend& frontend, const Sample& sample) {
  const std::string brought = sample.place.file("fasts.csv");
  std::ofstream{brought} << "start,end\n2026-01-02 20:00,2026-01-03 12:00\n2026-01-04 20:00,nonsense\n";
  send(frontend, sample, R"({"didChooseFiles": [")" + brought + R"("]})");
  for (const std::string_view step : steps) send(frontend, sample, step);
}

int recordPages(const std::string& folder) {
  const Sample sample{folder};
  Frontend frontend{sample.services()};
  ask(frontend);
  openAll(frontend, sample);
  const char* separator = "{\"pages\": {\n";
  const auto write = [&](std::string_view name, const std::string& json) {
    std::cout << std::exchange(separator, ",\n") << '"' << name << "\": " << json;
  };
  std::apply([&](const auto&... page) { (write(page.name, frontend.page(page.name).value()), ...); }, pages);
  separator = "},\n\"lists\": {\n";
  std::apply([&](const auto&... list) { (write(list.name, frontend.rows(list.name, 0, mostRows).value()), ...); },
             lists);
  std::cout << "}}\n" << std::flush;
  return std::cout ? 0 : 1;
}

}  // namespace
}  // namespace mivo::host

int main(int argc, char** argv) {
  try {
    return argc == 2 ? mivo::host::recordPages(argv[1]) : 2;
  } catch (const std::exception& error) {
    std::cerr << "recordPages: " << error.what() << '\n';
    return 1;
  }
}

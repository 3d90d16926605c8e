// SPDX-License-Identifier: MIT
//
// import_run MIVO FOLDER ROWS MEGABYTES: imports a table of fasts and a health export of so many rows and megabytes
// with the program MIVO, and does with SQLite and Expat alone what they cannot do without; both in turn, each in a
// process of its own. Prints a table of processor times and peak memory. FOLDER is for the files.
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <expat.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "adapters/standard/LocalUUIDGenerator.h"
#include "host/dates/DateText.h"
#include "host/disk/DatabaseFile.h"

namespace {

using namespace mivo;
namespace fs = std::filesystem;

constexpr int runs = 7;

Date startOf(std::int64_t row) { return dateSince1970(static_cast<double>(900'000'000 + row * 17'000)); }
Date endOf(std::int64_t row) { return startOf(row) + Duration{static_cast<double>(10'800 + row * 77 % 6'000)}; }

void writeTable(const fs::path& file, std::int64_t rows) {
  std::ofstream out{file};
  out << "start,end,goal_hours,note\n";
  for (std::int64_t row = 0; row < rows; ++row)
    out << host::rfc3339(startOf(row)) << ',' << host::rfc3339(endOf(row)) << ",4,\n";
}

/// One weighing among three hundred records of other kinds, as a watch makes them.
void writeHealthExport(const fs::path& file, std::int64_t megabytes) {
  constexpr std::array kinds{"HeartRate", "ActiveEnergyBurned", "StepCount", "BasalEnergyBurned"};
  std::ofstream out{file};
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE HealthData [\n<!ELEMENT HealthData (Record*)>\n]>\n"
         "<HealthData locale=\"en_GB\">\n";
  for (std::int64_t record = 0; out.tellp() < megabytes * 1'000'000; ++record) {
    std::string date = host::rfc3339(dateSince1970(1.4e9 + static_cast<double>(record) * 95));
    date = date.substr(0, 10) + ' ' + date.substr(11, 8) + " +0000";
    const bool isWeight = record % 300 == 0;
    out << " <Record type=\"HKQuantityTypeIdentifier"
        << (isWeight ? "BodyMass" : kinds[static_cast<std::size_t>(record) % kinds.size()])
        << "\" sourceName=\"Watch\" sourceVersion=\"10.1\" device=\"&lt;&lt;HKDevice: 0x281d3e120&gt;, name:Watch, "
           "hardware:6,2, software:10.1&gt;\" unit=\""
        << (isWeight ? "kg" : "count") << "\" creationDate=\"" << date << "\" startDate=\"" << date << "\" endDate=\""
        << date << "\" value=\"" << 60 + record % 40 << "\"/>\n";
  }
  out << "</HealthData>\n";
}

/// As a program would that knows nothing but the table: all bytes read, one statement for each row, one transaction.
int insertAlone(const fs::path& table, const fs::path& file, std::int64_t rows) {
  std::ifstream in{table};
  for (std::array<char, 1 << 16> piece{}; in.read(piece.data(), piece.size());) {
  }
  host::openDatabase(file);
  SQLite::Database database{file.string(), SQLite::OPEN_READWRITE};
  SQLite::Transaction transaction{database};
  SQLite::Statement insert{database,
                           "INSERT INTO fasts (id, startedAt, endedAt, goalSeconds, note) VALUES (?,?,?,?,'')"};
  const adapters::LocalUUIDGenerator ids;
  for (std::int64_t row = 0; row < rows; ++row) {
    const UUID id = ids.next();
    insert.bind(1, &id, sizeof id);
    insert.bind(2, secondsSince1970(startOf(row)));
    insert.bind(3, secondsSince1970(endOf(row)));
    insert.bind(4, std::int64_t{14'400});
    insert.exec();
    insert.reset();
  }
  transaction.commit();
  return 0;
}

int parseAlone(const fs::path& file) {
  const XML_Parser xml = XML_ParserCreate("UTF-8");
  XML_SetElementHandler(xml, [](void*, const XML_Char*, const XML_Char**) {}, [](void*, const XML_Char*) {});
  std::ifstream in{file, std::ios::binary};
  std::vector<char> piece(1 << 16);
  bool isWellFormed = true;
  while (isWellFormed && in) {
    in.read(piece.data(), static_cast<std::streamsize>(piece.size()));
    isWellFormed = XML_Parse(xml, piece.data(), static_cast<int>(in.gcount()), !in) == XML_STATUS_OK;
  }
  XML_ParserFree(xml);
  return isWellFormed ? 0 : 1;
}

struct Cost {
  double seconds, megabytes;
};

Cost costOf(const std::function<int()>& body) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(body());
  int status = 0;
  rusage used{};
  if (::wait4(child, &status, 0, &used) != child || status != 0) {
    std::fputs("a run failed\n", stderr);
    std::exit(1);
  }
  const auto seconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
  };
  return {seconds(used.ru_utime) + seconds(used.ru_stime), static_cast<double>(used.ru_maxrss) / 1024};
}

/// A line of the table: least and median of both.
void compare(const char* what, const std::function<int()>& alone, const std::function<int()>& ours) {
  std::array<double, runs> floors{}, times{};
  double megabytes = 0;
  for (std::size_t run = 0; run < runs; ++run) {
    floors[run] = costOf(alone).seconds;
    const Cost cost = costOf(ours);
    times[run] = cost.seconds;
    megabytes = std::max(megabytes, cost.megabytes);
  }
  std::ranges::sort(floors);
  std::ranges::sort(times);
  std::printf("| %s | %.3g / %.3g s | %.3g / %.3g s | %.2f | %.0f MB |\n", what, floors[0], floors[runs / 2], times[0],
              times[runs / 2], times[runs / 2] / floors[runs / 2], megabytes);
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 5) return 2;
  const std::string mivo = arguments[1];
  const fs::path folder = arguments[2], table = folder / "fasts.csv", health = folder / "export.xml",
                 database = folder / "history.sqlite";
  const std::int64_t rows = std::atoll(arguments[3]), megabytes = std::atoll(arguments[4]);
  writeTable(table, rows);
  writeHealthExport(health, megabytes);
  const auto fresh = [&] {
    for (const char* part : {"", "-wal", "-shm"}) fs::remove(database.string() + part);
  };
  const auto import = [&](const fs::path& file) {
    fresh();
    if (!std::freopen("/dev/null", "w", stdout)) return 1;
    ::execl(mivo.c_str(), "mivo", "import", "--database", database.c_str(), file.c_str(), nullptr);
    return 1;
  };
  std::puts("| what | alone | import | ratio | peak |\n|---|---:|---:|---:|---:|");
  std::fflush(stdout);
  compare(
      "rows of fasts, SQLite alone",
      [&] {
        fresh();
        return insertAlone(table, database, rows);
      },
      [&] { return import(table); });
  std::fflush(stdout);
  compare("health export, Expat alone", [&] { return parseAlone(health); }, [&] { return import(health); });
  return 0;
}

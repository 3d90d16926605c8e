// SPDX-License-Identifier: MIT
#include "tally/store/SqliteStore.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace mivo::tally {
namespace {

// Bounds the memory that invented names can take; what falls out is read from the file again.
constexpr std::size_t mostCountsInMemory = 100'000;
constexpr std::chrono::seconds lookEvery{1};

bool isVote(const Operation& operation) { return operation.delta != 0; }

}  // namespace

SqliteStore::SqliteStore(asio::io_context& eventLoop, const std::filesystem::path& file, Report reporter,
                         const StoreTimes& given, std::int64_t mostCounters)
    : loop(eventLoop),
      report(std::move(reporter)),
      times(given),
      lock(file),
      counters(file, SqliteCounters::Access::readWrite, times.answer, mostCounters),
      reads(file, SqliteCounters::Access::readOnly, times.answer),
      database(file),
      writeAheadLog(file.string() + "-wal") {
  learnDamage(reads.damage());
  learnFault(faultOfProbe());
  writer.emplace([this] { lookAfter(); }, lookEvery);
}

SqliteStore::~SqliteStore() = default;

std::optional<std::int64_t> SqliteStore::known(std::string_view counter) const {
  const auto found = counts.find(counter);
  return found == counts.end() ? std::nullopt : std::optional{found->second};
}

std::uintmax_t SqliteStore::writeAheadLogBytes() const {
  std::error_code error;
  const auto bytes = std::filesystem::file_size(writeAheadLog.path(), error);
  return error ? 0 : bytes;
}

void SqliteStore::submit(Operations operations, std::function<void(Results)> done) {
  if (std::ranges::any_of(operations, isVote)) {
    writing = {std::move(operations), std::move(done)};
    return writer->run([this] { write(); });
  }
  reading = {std::move(operations), std::move(done)};
  wasForgotten = false;
  reader.run([this] { read(); });
}

void SqliteStore::read() {
  Results results(reading.operations.size());
  std::string damage;
  try {
    results = reads.apply(reading.operations);
    damage = reads.takeDamage();
  } catch (const std::exception& error) {
    damage = error.what();
  }
  asio::post(loop, [this, results = std::move(results), damage = std::move(damage)]() mutable {
    didRead(std::move(results), damage);
  });
}

void SqliteStore::write() {
  Results results(writing.operations.size());
  std::string fault;
  try {
    auto kept = counters.apply(writing.operations);
    fault = faultOfFile();
    if (fault.empty()) results = std::move(kept);
  } catch (const std::exception& error) {
    fault = error.what();
  }
  noteWrite(fault);
  asio::post(loop, [this, results = std::move(results), fault = std::move(fault), damage = counters.takeDamage()] {
    didWrite(results, fault, damage);
  });
}

void SqliteStore::lookAfter() {
  bool wasChanged = false;
  std::optional<std::string> fault;
  try {
    wasChanged = counters.wasChangedByOthers();
    const auto age = std::chrono::steady_clock::now() - lastWrite;
    if (age >= (didWriteFail ? times.probeAgain : times.probe)) {
      fault = faultOfProbe();
    } else if (auto missing = faultOfFile(); !missing.empty()) {
      didWriteFail = true;
      fault = std::move(missing);
    }
  } catch (const std::exception& error) {
    fault = error.what();
  }
  if (wasChanged || fault) asio::post(loop, [this, wasChanged, fault] { didLook(wasChanged, fault); });
}

std::string SqliteStore::faultOfProbe() {
  std::string fault;
  try {
    counters.probe();
    fault = faultOfFile();
  } catch (const std::exception& error) {
    fault = error.what();
  }
  noteWrite(fault);
  return fault;
}

std::string SqliteStore::faultOfFile() const {
  for (const auto* file : {&database, &writeAheadLog})
    if (!file->isStillThere())
      return file->path().string() + ": was removed or replaced while it was open: put it back, or start again";
  return {};
}

void SqliteStore::noteWrite(const std::string& fault) {
  lastWrite = std::chrono::steady_clock::now();
  didWriteFail = !fault.empty();
}

void SqliteStore::didRead(Results results, const std::string& damage) {
  learnDamage(damage);
  makeRoom(results.size());
  for (std::size_t i = 0; i < results.size(); ++i) {
    const auto& counter = reading.operations[i].counter;
    if (results[i].outcome != Outcome::counted) continue;
    // A vote that was counted meanwhile knows better, and so does whoever wrote to the file.
    if (const auto newer = known(counter)) results[i].count = *newer;
    if (!wasForgotten) counts.try_emplace(counter, results[i].count);
  }
  std::exchange(reading.done, {})(std::move(results));
}

void SqliteStore::didWrite(const Results& results, const std::string& fault, const std::string& damage) {
  learnFault(fault);
  learnDamage(damage);
  makeRoom(results.size());
  for (std::size_t i = 0; i < results.size(); ++i)
    if (results[i].outcome == Outcome::counted)
      counts.insert_or_assign(writing.operations[i].counter, results[i].count);
  std::exchange(writing.done, {})(results);
}

void SqliteStore::didLook(bool wasChanged, const std::optional<std::string>& fault) {
  if (wasChanged) forget();
  if (fault) learnFault(*fault);
}

void SqliteStore::learnFault(const std::string& fault) {
  const bool wasFailing = std::exchange(isFailing, !fault.empty());
  if (isFailing && !wasFailing) report("votes cannot be kept: " + fault);
  if (!isFailing && wasFailing) report("votes are kept again");
}

void SqliteStore::learnDamage(const std::string& damage) {
  if (damage.empty() || std::exchange(wasDamageFound, true)) return;
  report(database.path().string() + ": a part cannot be read, restore a backup: " + damage);
}

void SqliteStore::makeRoom(std::size_t further) {
  if (counts.size() + further > mostCountsInMemory) forget();
}

void SqliteStore::forget() {
  counts.clear();
  wasForgotten = true;
}

}  // namespace mivo::tally

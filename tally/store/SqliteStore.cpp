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

SqliteStore::SqliteStore(asio::io_context& loop, const std::filesystem::path& file, Report report,
                         std::chrono::milliseconds busyTime, std::int64_t mostCounters)
    : loop_(loop),
      report_(std::move(report)),
      lock_(file),
      counters_(file, SqliteCounters::Access::readWrite, busyTime, mostCounters),
      reads_(file, SqliteCounters::Access::readOnly, busyTime),
      database_(file),
      writeAheadLog_(file.string() + "-wal") {
  learnDamage(reads_.damage());
  learnFault(faultOfProbe());
  writer_.emplace([this] { lookAfter(); }, lookEvery);
}

SqliteStore::~SqliteStore() = default;

std::optional<std::int64_t> SqliteStore::known(std::string_view counter) const {
  const auto found = counts_.find(counter);
  return found == counts_.end() ? std::nullopt : std::optional{found->second};
}

std::uintmax_t SqliteStore::writeAheadLogBytes() const {
  std::error_code error;
  const auto bytes = std::filesystem::file_size(writeAheadLog_.path(), error);
  return error ? 0 : bytes;
}

void SqliteStore::submit(Operations operations, std::function<void(Results)> done) {
  if (std::ranges::any_of(operations, isVote)) {
    writing_ = {std::move(operations), std::move(done)};
    return writer_->run([this] { write(); });
  }
  reading_ = {std::move(operations), std::move(done)};
  wasForgotten_ = false;
  reader_.run([this] { read(); });
}

void SqliteStore::read() {
  Results results(reading_.operations.size());
  std::string damage;
  try {
    results = reads_.apply(reading_.operations);
    damage = reads_.takeDamage();
  } catch (const std::exception& error) {
    damage = error.what();
  }
  asio::post(loop_, [this, results = std::move(results), damage = std::move(damage)]() mutable {
    didRead(std::move(results), damage);
  });
}

void SqliteStore::write() {
  Results results(writing_.operations.size());
  std::string fault;
  try {
    auto kept = counters_.apply(writing_.operations);
    fault = faultOfFile();
    if (fault.empty()) results = std::move(kept);
  } catch (const std::exception& error) {
    fault = error.what();
  }
  noteWrite(fault);
  asio::post(loop_, [this, results = std::move(results), fault = std::move(fault), damage = counters_.takeDamage()] {
    didWrite(results, fault, damage);
  });
}

void SqliteStore::lookAfter() {
  constexpr std::chrono::seconds afterSuccess{30};
  constexpr std::chrono::seconds afterFailure{2};
  bool wasChanged = false;
  std::optional<std::string> fault;
  try {
    wasChanged = counters_.wasChangedByOthers();
    const auto age = std::chrono::steady_clock::now() - lastWrite_;
    if (age >= (didWriteFail_ ? afterFailure : afterSuccess)) {
      fault = faultOfProbe();
    } else if (auto missing = faultOfFile(); !missing.empty()) {
      didWriteFail_ = true;
      fault = std::move(missing);
    }
  } catch (const std::exception& error) {
    fault = error.what();
  }
  if (wasChanged || fault) asio::post(loop_, [this, wasChanged, fault] { didLook(wasChanged, fault); });
}

std::string SqliteStore::faultOfProbe() {
  std::string fault;
  try {
    counters_.probe();
    fault = faultOfFile();
  } catch (const std::exception& error) {
    fault = error.what();
  }
  noteWrite(fault);
  return fault;
}

std::string SqliteStore::faultOfFile() const {
  for (const auto* file : {&database_, &writeAheadLog_})
    if (!file->isStillThere())
      return file->path().string() + ": was removed or replaced while it was open: put it back, or start again";
  return {};
}

void SqliteStore::noteWrite(const std::string& fault) {
  lastWrite_ = std::chrono::steady_clock::now();
  didWriteFail_ = !fault.empty();
}

void SqliteStore::didRead(Results results, const std::string& damage) {
  learnDamage(damage);
  makeRoom(results.size());
  for (std::size_t i = 0; i < results.size(); ++i) {
    const auto& counter = reading_.operations[i].counter;
    if (results[i].outcome != Outcome::counted) continue;
    // A vote that was counted meanwhile knows better, and so does whoever wrote to the file.
    if (const auto newer = known(counter)) results[i].count = *newer;
    if (!wasForgotten_) counts_.try_emplace(counter, results[i].count);
  }
  std::exchange(reading_.done, {})(std::move(results));
}

void SqliteStore::didWrite(const Results& results, const std::string& fault, const std::string& damage) {
  learnFault(fault);
  learnDamage(damage);
  makeRoom(results.size());
  for (std::size_t i = 0; i < results.size(); ++i)
    if (results[i].outcome == Outcome::counted)
      counts_.insert_or_assign(writing_.operations[i].counter, results[i].count);
  std::exchange(writing_.done, {})(results);
}

void SqliteStore::didLook(bool wasChanged, const std::optional<std::string>& fault) {
  if (wasChanged) forget();
  if (fault) learnFault(*fault);
}

void SqliteStore::learnFault(const std::string& fault) {
  const bool wasFailing = std::exchange(isFailing_, !fault.empty());
  if (isFailing_ && !wasFailing) report_("votes cannot be kept: " + fault);
  if (!isFailing_ && wasFailing) report_("votes are kept again");
}

void SqliteStore::learnDamage(const std::string& damage) {
  if (damage.empty() || std::exchange(isDamaged_, true)) return;
  report_(database_.path().string() + ": a part cannot be read, restore a backup: " + damage);
}

void SqliteStore::makeRoom(std::size_t counts) {
  if (counts_.size() + counts > mostCountsInMemory) forget();
}

void SqliteStore::forget() {
  counts_.clear();
  wasForgotten_ = true;
}

}  // namespace mivo::tally

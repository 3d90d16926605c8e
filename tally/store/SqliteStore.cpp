// SPDX-License-Identifier: MIT
#include "tally/store/SqliteStore.h"

#include <algorithm>

namespace mivo::tally {
namespace {

// Bounds the memory that invented names can take; what falls out is read from the file again.
constexpr std::size_t mostCountsInMemory = 100'000;
constexpr std::chrono::seconds failureIsRecent{5};

bool isVote(const Operation& operation) { return operation.delta != 0; }

}  // namespace

SqliteStore::SqliteStore(asio::io_context& loop, const std::filesystem::path& file, Report report)
    : loop_(loop),
      report_(std::move(report)),
      lock_(file),
      counters_(file, SqliteCounters::Access::readWrite),
      writer_([this](const std::stop_token& stop) { write(stop); }) {}

SqliteStore::~SqliteStore() = default;

std::optional<std::int64_t> SqliteStore::known(std::string_view counter) const {
  const auto found = counts_.find(counter);
  return found == counts_.end() ? std::nullopt : std::optional{found->second};
}

void SqliteStore::submit(Operations operations, std::function<void(Results)> done) {
  operations_ = std::move(operations);
  done_ = std::move(done);
  {
    const std::lock_guard guard{mutex_};
    hasWork_ = true;
  }
  wake_.notify_one();
}

bool SqliteStore::isAvailable() const {
  return !isFailing_ || std::chrono::steady_clock::now() - lastFailure_ > failureIsRecent;
}

void SqliteStore::write(const std::stop_token& stop) {
  for (;;) {
    {
      std::unique_lock lock{mutex_};
      if (!wake_.wait(lock, stop, [this] { return hasWork_; })) return;
      hasWork_ = false;
    }
    Results results(operations_.size());
    std::string fault;
    try {
      results = counters_.apply(operations_);
    } catch (const std::exception& error) {
      fault = error.what();
      readWhatCanBeRead(results);
    }
    asio::post(loop_, [this, results = std::move(results), fault = std::move(fault)] { didWrite(results, fault); });
  }
}

// A full disk stops votes, not readers.
void SqliteStore::readWhatCanBeRead(Results& results) {
  try {
    for (std::size_t i = 0; i < operations_.size(); ++i)
      if (!isVote(operations_[i])) results[i] = {Outcome::counted, counters_.count(operations_[i].counter)};
  } catch (const std::exception&) {
    // The fault of the batch says it all.
  }
}

void SqliteStore::didWrite(const Results& results, const std::string& fault) {
  if (!fault.empty()) {
    lastFailure_ = std::chrono::steady_clock::now();
    if (!isFailing_) report_("votes cannot be kept: " + fault);
    isFailing_ = true;
  } else if (isFailing_ && std::ranges::any_of(operations_, isVote)) {
    report_("votes are kept again");
    isFailing_ = false;
  }
  remember(results);
  std::exchange(done_, {})(results);
}

void SqliteStore::remember(const Results& results) {
  if (counts_.size() + results.size() > mostCountsInMemory) counts_.clear();
  for (std::size_t i = 0; i < results.size(); ++i)
    if (results[i].outcome == Outcome::counted) counts_.insert_or_assign(operations_[i].counter, results[i].count);
}

}  // namespace mivo::tally

// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mivo::tally {

/// One thing to do to a counter.
struct Operation {
  std::string counter;  // "NAMESPACE/featureID"
  int delta = 0;        // 1 or -1; 0 asks for the count
};

enum class Outcome {
  counted,   // the count is that after the operation, and it is kept
  full,      // the counter would be one too many: nothing was changed
  overflow,  // the count would leave 64 bits: nothing was changed
  away,  // the store cannot say now. A vote was not kept, or, where a connection broke before its answer, may have been
};

struct Result {
  Outcome outcome = Outcome::away;
  std::int64_t count = 0;
  bool operator==(const Result&) const = default;
};

using Operations = std::vector<Operation>;
using Results = std::vector<Result>;
/// Takes one line for the log: what went wrong with the store, or that it is back.
using Report = std::function<void(std::string_view)>;

struct StoreTimes {
  std::chrono::seconds answer{5};      // for what is asked of it, and until another process lets go of the file
  std::chrono::seconds probe{30};      // without a vote, until a write shows whether one would be kept
  std::chrono::seconds probeAgain{2};  // the same while votes fail
};

/// Where the counters are. Used from the event loop's thread alone; `submit` is called again only from its `done`, or
/// after it; where the store reads apart, a batch of reads and one with votes may be under way beside each other.
class CounterStore {
 public:
  virtual ~CounterStore() = default;
  /// The count, where it is known without asking.
  virtual std::optional<std::int64_t> known(std::string_view counter) const = 0;
  /// Carries the operations out in order and calls `done` with as many results, on the event loop, never from inside.
  /// What it calls `counted` outlives a loss of power as far as the store promises.
  virtual void submit(Operations operations, std::function<void(Results)> done) = 0;
  /// Whether a vote sent now is likely to be kept.
  virtual bool isAvailable() const = 0;
  virtual bool readsApart() const { return false; }
  /// Whether a part of it was found that cannot be read.
  virtual bool isDamaged() const { return false; }
  /// How much waits to be folded into the database.
  virtual std::uintmax_t writeAheadLogBytes() const { return 0; }
};

/// count + delta, or nothing where that leaves 64 bits.
constexpr std::optional<std::int64_t> added(std::int64_t count, int delta) {
  using Limits = std::numeric_limits<std::int64_t>;
  if (delta > 0 && count > Limits::max() - delta) return std::nullopt;
  if (delta < 0 && count < Limits::min() - delta) return std::nullopt;
  return count + delta;
}

}  // namespace mivo::tally

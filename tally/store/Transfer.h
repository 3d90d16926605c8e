// SPDX-License-Identifier: MIT
#pragma once
#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tally/store/Change.h"
#include "tally/store/StoreAddress.h"

namespace mivo::tally {

using Counts = std::map<std::string, std::int64_t, std::less<>>;

/// What an import would do.
struct ImportPlan {
  std::vector<Change> changes;
  std::vector<Change> conflicts;  // counters that are there with another count, unless they are to be replaced
  std::size_t equal = 0;          // counters that are there already with their count
};

/// Writes one counter a line, in order of their names: {"counter":"app.example/feature12","value":7}
void writeCounts(std::ostream& out, const Counts& counts);

/// The same into a file that its owner alone may read, whose former content, an older backup say, is there until the
/// new one is complete and on the disk. What is not a file, a pipe say, is written into. Throws std::runtime_error with
/// one sentence.
void writeCounts(const std::filesystem::path& file, const Counts& counts);

/// Reads what writeCounts wrote. Throws std::runtime_error with file, line and field for a line that is anything else,
/// or a counter that comes twice.
Counts readCounts(std::istream& in, const std::string& fileName);

ImportPlan planImport(const Counts& present, const Counts& wanted, bool replace);

/// Every counter of a store. Throws std::runtime_error with one sentence.
Counts readStore(const StoreAddress& address);

/// Sets one counter, also of a store that a server uses: it sees the new count within a second. What it was, or nothing
/// for a counter that nobody voted for. Throws as readStore does, also for a SQLite file that is not there.
std::optional<std::int64_t> correctCount(const StoreAddress& address, const std::string& counter, std::int64_t count);

/// Brings counts into a store, where the plan has no conflicts: otherwise nothing is changed. A SQLite file, which must
/// not be in a server's use, takes all of them or none; Redis takes them one by one. Throws as readStore does.
ImportPlan importCounts(const StoreAddress& address, const Counts& wanted, bool replace);

}  // namespace mivo::tally

// SPDX-License-Identifier: MIT
#include "tally/store/Transfer.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <istream>
#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include "tally/request/CounterName.h"
#include "tally/store/FileLock.h"
#include "tally/store/RedisTransfer.h"
#include "tally/store/SqliteCounters.h"

namespace mivo::tally {
namespace {

using nlohmann::json;

struct Line {
  std::string counter;
  std::int64_t value = 0;
};

std::int64_t wholeNumber(const json& value) {
  constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  const bool fits = value.is_number_integer() && (!value.is_number_unsigned() || value.get<std::uint64_t>() <= largest);
  if (!fits) throw std::runtime_error("value: expected a whole number of 64 bits, found " + value.dump());
  return value.get<std::int64_t>();
}

// Which of two members with the same name counts is a matter of the reader: none does here.
json parseWithoutTwins(const std::string& text) {
  std::set<std::string> names;
  const auto isNew = [&names](int depth, json::parse_event_t event, json& parsed) {
    if (depth == 1 && event == json::parse_event_t::key && !names.insert(parsed.get<std::string>()).second)
      throw std::runtime_error(parsed.get<std::string>() + ": comes twice");
    return true;
  };
  return json::parse(text, isNew, false);
}

Line parseLine(const std::string& text) {
  const auto line = parseWithoutTwins(text);
  if (!line.is_object()) throw std::runtime_error("expected an object with counter and value");
  if (!line.contains("counter") || !line["counter"].is_string()) throw std::runtime_error("counter: expected a text");
  if (!line.contains("value")) throw std::runtime_error("value: is missing");
  auto counter = line["counter"].get<std::string>();
  if (const auto fault = faultOfCounterName(counter)) throw std::runtime_error("counter: " + std::string{*fault});
  return {std::move(counter), wholeNumber(line["value"])};
}

bool writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const auto written = ::write(descriptor, text.data(), text.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

// A pipe cannot be flushed, and need not be.
bool isFlushed(int descriptor) { return ::fsync(descriptor) == 0 || errno == EINVAL || errno == EROFS; }

bool writeAndFlush(const std::filesystem::path& file, std::string_view text, int how) {
  constexpr mode_t ownersOnly = 0600;
  const int descriptor = ::open(file.c_str(), O_WRONLY | O_CLOEXEC | how, ownersOnly);
  if (descriptor < 0) return false;
  const bool isWritten = writeAll(descriptor, text) && isFlushed(descriptor);
  return ::close(descriptor) == 0 && isWritten;
}

// A new name outlives a loss of power once the folder is on the disk.
bool flushFolderOf(const std::filesystem::path& file) {
  const int descriptor = ::open(std::filesystem::absolute(file).parent_path().c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) return false;
  const bool isDone = isFlushed(descriptor);
  return ::close(descriptor) == 0 && isDone;
}

Counts readTable(SqliteCounters& table) {
  Counts counts;
  table.forEach([&](std::string_view counter, std::int64_t count) { counts.emplace(counter, count); });
  return counts;
}

}  // namespace

void writeCounts(std::ostream& out, const Counts& counts) {
  for (const auto& [counter, value] : counts)
    out << "{\"counter\":" << json(counter).dump() << ",\"value\":" << value << "}\n";
}

void writeCounts(const std::filesystem::path& file, const Counts& counts) {
  std::ostringstream text;
  writeCounts(text, counts);
  const bool isReplaced = !std::filesystem::exists(file) || std::filesystem::is_regular_file(file);
  const auto target = isReplaced ? std::filesystem::path{file.string() + ".part"} : file;
  std::error_code error;
  if (isReplaced) std::filesystem::remove(target, error);  // left by an export that was killed; others may read it
  if (writeAndFlush(target, text.view(), isReplaced ? O_CREAT | O_EXCL : 0)) {
    if (!isReplaced) return;
    std::filesystem::rename(target, file, error);
    if (!error && flushFolderOf(file)) return;
  }
  if (isReplaced) std::filesystem::remove(target, error);
  throw std::runtime_error(file.string() + ": cannot be written");
}

Counts readCounts(std::istream& in, const std::string& fileName) {
  Counts counts;
  std::string text;
  for (int number = 1; std::getline(in, text); ++number) {
    if (text.empty()) continue;
    try {
      auto [counter, value] = parseLine(text);
      if (!counts.emplace(counter, value).second) throw std::runtime_error("counter: " + counter + " comes twice");
    } catch (const std::exception& error) {
      throw std::runtime_error(fileName + ':' + std::to_string(number) + ": " + error.what());
    }
  }
  if (in.bad()) throw std::runtime_error(fileName + ": cannot be read to its end");
  return counts;
}

ImportPlan planImport(const Counts& present, const Counts& wanted, bool replace) {
  ImportPlan plan;
  for (const auto& [counter, value] : wanted) {
    const auto found = present.find(counter);
    const bool isNew = found == present.end();
    const Change change{counter, isNew ? 0 : found->second, value};
    if (!isNew && change.from == value) {
      ++plan.equal;
    } else {
      (isNew || replace ? plan.changes : plan.conflicts).push_back(change);
    }
  }
  return plan;
}

Counts readStore(const StoreAddress& address) {
  if (const auto* redis = std::get_if<RedisAddress>(&address)) return readRedis(*redis);
  SqliteCounters counters{std::get<SqliteAddress>(address).file, SqliteCounters::Access::readOnly};
  return readTable(counters);
}

std::optional<std::int64_t> correctCount(const StoreAddress& address, const std::string& counter, std::int64_t count) {
  if (const auto* redis = std::get_if<RedisAddress>(&address)) return replaceInRedis(*redis, counter, count);
  const auto& file = std::get<SqliteAddress>(address).file;
  if (!std::filesystem::exists(file)) throw std::runtime_error(file.string() + ": there is no such database");
  return SqliteCounters{file, SqliteCounters::Access::readWrite}.replace(counter, count);
}

ImportPlan importCounts(const StoreAddress& address, const Counts& wanted, bool replace) {
  if (const auto* redis = std::get_if<RedisAddress>(&address)) {
    auto plan = planImport(readRedis(*redis), wanted, replace);
    if (plan.conflicts.empty()) changeRedis(*redis, plan.changes);
    return plan;
  }
  const auto& file = std::get<SqliteAddress>(address).file;
  const FileLock lock{file};
  SqliteCounters counters{file, SqliteCounters::Access::readWrite};
  auto plan = planImport(readTable(counters), wanted, replace);
  if (plan.conflicts.empty()) counters.set(plan.changes);
  return plan;
}

}  // namespace mivo::tally

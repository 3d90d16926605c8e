// SPDX-License-Identifier: MIT
#include "adapters/system/FileUserDefaults.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <cmath>
#include <ctime>
#include <fstream>
#include <limits>
#include <mutex>
#include <nlohmann/json.hpp>
#include <sstream>
#include <system_error>
#include <type_traits>
#include <utility>

#include "adapters/system/AtomicFile.h"
#include "adapters/system/FileDescriptor.h"
#include "mivo/platform/IssueReporting.h"

namespace mivo::adapters {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;

/// Tells two states of a file apart: every write is a new file that is renamed into place.
struct FileStamp {
  ino_t inode = 0;
  off_t size = 0;
  std::time_t seconds = 0;
  long nanoseconds = 0;
  bool operator==(const FileStamp&) const = default;
};

/// All zeros where there is no file.
FileStamp stampOf(const fs::path& file) {
  struct stat found{};
  if (::stat(file.c_str(), &found) != 0) return {};
  return {found.st_ino, found.st_size, found.st_mtim.tv_sec, found.st_mtim.tv_nsec};
}

std::optional<UserDefaults::Value> valueOf(const json& member) {
  if (member.is_boolean()) return member.get<bool>();
  if (member.is_string()) return member.get<std::string>();
  const bool fits = !member.is_number_unsigned() ||
                    member.get<std::uint64_t>() <= std::uint64_t{std::numeric_limits<std::int64_t>::max()};
  if (member.is_number_integer() && fits) return member.get<std::int64_t>();
  if (member.is_number()) return member.get<double>();
  return std::nullopt;
}

bool isKeepable(const std::optional<UserDefaults::Value>& value) {
  const double* number = value ? std::get_if<double>(&*value) : nullptr;
  return !number || std::isfinite(*number);
}

std::string timeStamp() {
  const std::time_t now = std::time(nullptr);
  std::tm fields{};
  ::gmtime_r(&now, &fields);
  char text[32];
  return {text, std::strftime(text, sizeof text, "%Y%m%dT%H%M%SZ", &fields)};
}

/// Holds off other writers of a file, in this process and in others, for as long as it lives.
FileDescriptor lockForWriting(const fs::path& file) {
  std::error_code ignored;  // the open below fails then, and says why
  fs::create_directories(file.parent_path(), ignored);
  FileDescriptor lock{::open((file.string() + ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)};
  while (lock && ::flock(lock.get(), LOCK_EX) != 0)
    if (errno != EINTR) return {};
  return lock;
}

}  // namespace

struct FileUserDefaults::Scope {
  fs::path file;
  std::mutex mutex;
  FileStamp stamp;
  json members = json::object();
  bool isReadable = true, isFailing = false;
  DidFailToWrite didFailToWrite;

  void refresh() {
    const FileStamp current = stampOf(file);
    if (current == stamp) return;
    stamp = current;
    members = json::object();
    isReadable = true;
    if (current != FileStamp{}) read();
  }

  void read() {
    std::ifstream input{file, std::ios::binary};
    std::ostringstream content;
    content << input.rdbuf();
    if (!input) {
      isReadable = false;
      return reportIssue(file.string() +
                         ": these settings cannot be read, so the defaults are used and nothing is saved");
    }
    try {
      json parsed = json::parse(content.view());
      if (!parsed.is_object()) throw std::runtime_error{"not an object"};
      members = std::move(parsed);
    } catch (const std::exception& error) {
      keepAside(error.what());
    }
  }

  void keepAside(std::string_view reason) {
    const fs::path aside = file.string() + ".damaged-" + timeStamp();
    std::error_code failure;
    fs::rename(file, aside, failure);
    isReadable = !failure;
    stamp = stampOf(file);
    reportIssue(file.string() + ": these settings are damaged (" + std::string{reason} +
                "), so the defaults are used; the file is kept as " + (failure ? file : aside).filename().string());
  }

  void write() {
    try {
      constexpr int indent = 2;
      writeAtomically(file, members.dump(indent, ' ', false, json::error_handler_t::replace) + '\n');
      stamp = stampOf(file);
      isFailing = false;
    } catch (const std::system_error& error) {
      reportIssue(error.what());
      if (!std::exchange(isFailing, true) && didFailToWrite) didFailToWrite(file, error.code());
    }
  }
};

FileUserDefaults::FileUserDefaults(const fs::path& file, DidFailToWrite didFailToWrite)
    : scope{std::make_unique<Scope>()} {
  scope->file = fs::absolute(file);
  scope->didFailToWrite = std::move(didFailToWrite);
}

FileUserDefaults::~FileUserDefaults() = default;

std::optional<UserDefaults::Value> FileUserDefaults::value(std::string_view key) const {
  const std::scoped_lock lock{scope->mutex};
  scope->refresh();
  const auto member = scope->members.find(key);
  return member == scope->members.end() ? std::nullopt : valueOf(*member);
}

void FileUserDefaults::setValue(std::string_view key, std::optional<Value> value) const {
  if (!isKeepable(value)) return reportIssue(std::string{key} + ": a number that is not finite is not saved");
  const std::scoped_lock lock{scope->mutex};
  const FileDescriptor turn = lockForWriting(scope->file);
  scope->refresh();
  if (value)
    std::visit([&](const auto& held) { scope->members[std::string{key}] = held; }, *value);
  else
    scope->members.erase(std::string{key});
  if (scope->isReadable) scope->write();
}

}  // namespace mivo::adapters

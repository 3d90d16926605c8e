// SPDX-License-Identifier: MIT
#include "adapters/zoneinfo/TimeZoneNames.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>
#include <fstream>
#include <optional>
#include <system_error>

#include "adapters/spelling/ClosestSpelling.h"
#include "mivo/model/LowerCase.h"

namespace mivo::adapters {

namespace fs = std::filesystem;

namespace {

bool isTimeZoneFile(const fs::path& path) {
  std::array<char, 4> magic{};
  std::ifstream file{path, std::ios::binary};
  return file.read(magic.data(), magic.size()) && std::string_view{magic.data(), magic.size()} == "TZif";
}

// Files of the directory that are zones by content but name none: the system's own choice, and copies.
bool isSetAside(std::string_view name) {
  static constexpr std::array<std::string_view, 3> alone{"localtime", "posixrules", "Factory"};
  return std::ranges::count(alone, name) > 0 || name.starts_with("posix/") || name.starts_with("right/");
}

bool isSpelledLikeOne(std::string_view name) {
  const auto allowed = [](char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '/' || c == '_' || c == '-' || c == '+';
  };
  return !name.empty() && name.front() != '/' && std::ranges::all_of(name, allowed);
}

// The zone whose name, or whose city, is spelled most like this; none where nothing comes close.
std::optional<std::string> closestName(std::string_view name) {
  const std::vector<std::string> names = timeZoneNames();
  std::vector<std::string> spellings;
  spellings.reserve(2 * names.size());
  for (const std::string& whole : names) spellings.push_back(lowerCase(whole));
  for (std::size_t place = 0; place < names.size(); ++place)
    spellings.push_back(spellings[place].substr(spellings[place].rfind('/') + 1));
  const auto closest = closestSpelling(lowerCase(name), spellings);
  return closest ? std::optional{names[*closest % names.size()]} : std::nullopt;
}

// "/usr/share/zoneinfo/Europe/Berlin" and links to it give "Europe/Berlin".
std::optional<std::string> nameOfFile(const fs::path& path) {
  std::error_code error;
  const fs::path target = fs::is_symlink(path, error) ? fs::read_symlink(path, error) : path;
  const std::string text = (path.parent_path() / target).lexically_normal().string();
  for (const std::string& directory : {timeZoneDirectory().string() + '/', std::string{"/zoneinfo/"}}) {
    const auto at = text.find(directory);
    if (at == std::string::npos) continue;
    std::string name = text.substr(at + directory.size());
    if (name.starts_with("posix/")) name.erase(0, 6);
    if (isTimeZoneName(name)) return name;
  }
  return std::nullopt;
}

}  // namespace

fs::path timeZoneDirectory() {
  const char* directory = std::getenv("TZDIR");
  return directory && *directory ? directory : "/usr/share/zoneinfo";
}

std::string timeZoneDataVersion() {
  constexpr std::string_view heading = "# version ";
  std::ifstream rules{timeZoneDirectory() / "tzdata.zi"};
  std::string line;
  return std::getline(rules, line) && line.starts_with(heading) ? line.substr(heading.size()) : std::string{};
}

bool isTimeZoneName(std::string_view name) {
  if (name == "UTC") return true;  // known without a database
  return isSpelledLikeOne(name) && !isSetAside(name) && isTimeZoneFile(timeZoneDirectory() / name);
}

std::vector<std::string> timeZoneNames() {
  std::vector<std::string> names;
  const fs::path directory = timeZoneDirectory();
  std::error_code error;
  for (fs::recursive_directory_iterator entry{directory, error}, end; !error && entry != end; entry.increment(error)) {
    std::string name = entry->path().lexically_relative(directory).string();
    if (entry->is_directory()) {
      if (isSetAside(name + '/')) entry.disable_recursion_pending();
    } else if (isTimeZoneName(name)) {
      names.push_back(std::move(name));
    }
  }
  std::ranges::sort(names);
  return names;
}

std::string unknownTimeZone(std::string_view name) {
  std::string text = "unknown time zone \"" + std::string{name} + "\": ";
  if (const auto closest = closestName(name)) return text + "did you mean " + *closest + '?';
  return text + "expected a name of the time-zone database, such as Europe/Berlin";
}

tl::expected<std::string, std::string> systemTimeZoneName() {
  if (const char* setting = std::getenv("TZ")) {
    std::string_view name = setting;
    if (name.starts_with(':')) name.remove_prefix(1);
    if (name.empty()) return "UTC";
    if (isTimeZoneName(name)) return std::string{name};
    if (name.starts_with('/'))
      if (const auto named = nameOfFile(name)) return *named;
    return tl::unexpected{"TZ: " + unknownTimeZone(name)};
  }
  if (const auto named = nameOfFile("/etc/localtime")) return *named;
  std::string name;
  if (std::ifstream{"/etc/timezone"} >> name && isTimeZoneName(name)) return name;
  return "UTC";
}

}  // namespace mivo::adapters

// SPDX-License-Identifier: MIT
#include "host/backup/BackupName.h"

#include <algorithm>
#include <chrono>

#include "host/dates/DateText.h"

namespace mivo::host {
namespace {

constexpr std::string_view beginning = "mivo-", ending = ".json";
constexpr std::size_t placeOfMinutes = std::string_view{"2026-03-01T12"}.size(), placeOfSeconds = placeOfMinutes + 3;

}  // namespace

std::string backupKey(Date date) {
  std::string text = rfc3339(std::chrono::floor<std::chrono::seconds>(date));
  std::erase(text, ':');
  return text;
}

std::string backupName(Date date) { return std::string{beginning}.append(backupKey(date)).append(ending); }

std::optional<Date> backupDate(std::string_view name) {
  if (!name.starts_with(beginning) || !name.ends_with(ending)) return std::nullopt;
  std::string text{name.substr(beginning.size(), name.size() - beginning.size() - ending.size())};
  if (text.size() < placeOfSeconds) return std::nullopt;
  text.insert(placeOfMinutes, 1, ':').insert(placeOfSeconds, 1, ':');
  const auto written = parseDateText(text);
  const auto date = written ? instant(*written) : std::nullopt;
  return date && backupName(*date) == name ? date : std::nullopt;
}

}  // namespace mivo::host

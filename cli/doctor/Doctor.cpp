// SPDX-License-Identifier: MIT
#include "cli/doctor/Doctor.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "adapters/icu/UserLocale.h"
#include "adapters/json/NlohmannDecoder.h"
#include "adapters/system/Awaited.h"
#include "adapters/system/UserDirectories.h"
#include "adapters/time/TimeZone.h"
#include "adapters/zoneinfo/LoadTimeZone.h"
#include "adapters/zoneinfo/TimeZoneNames.h"
#include "host/dates/DateText.h"
#include "host/disk/DatabaseFile.h"
#include "host/disk/FindBackupPlace.h"
#include "host/disk/TextFile.h"
#include "host/files/FilesOnDisk.h"
#include "host/health/LinkedHealthClient.h"
#include "host/health/ReadLinkedHealth.h"
#include "host/json/JsonWriter.h"

namespace mivo::cli {
namespace {

namespace fs = std::filesystem;

bool isThere(const fs::path& file) {
  std::error_code unknown;
  return fs::exists(file, unknown);
}

Finding settings(const char* name, const fs::path& file) {
  if (!isThere(file)) return {name, file.string() + ": none chosen yet"};
  const auto text = host::readTextFile(file.string());
  if (!text) return {name, describe(text.error()), true};
  try {
    adapters::NlohmannDecoder{}.decoded(*text);
    return {name, file.string() + ": sound"};
  } catch (const std::exception&) {
    return {name, file.string() + ": expected settings in JSON; Mivo will set the file aside and begin anew", true};
  }
}

std::string counts(const host::History& history) {
  return "fasts: " + std::to_string(history.fasts.size()) + ", weights: " + std::to_string(history.weights.size());
}

Finding database(const fs::path& file, bool isNamed) {
  if (!isThere(file)) return {"database", file.string() + (isNamed ? ": no such file" : ": none yet"), isNamed};
  try {
    const host::History history = host::openDatabase(file, host::Database::Access::readOnly).history();
    return {"database", file.string() + ": sound, " + counts(history)};
  } catch (const host::DatabaseError& error) {
    return {"database", error.what(), true};
  }
}

/// Those that were damaged and kept: they hold what a person may want back.
void addSetAside(std::vector<Finding>& findings, const fs::path& file) {
  std::error_code unknown;
  const std::string prefix = file.filename().string() + ".damaged-";
  std::vector<std::string> kept;
  for (const auto& entry : fs::directory_iterator{file.has_parent_path() ? file.parent_path() : ".", unknown}) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with(prefix) && !name.ends_with("-wal") && !name.ends_with("-shm"))
      kept.push_back(entry.path().string());
  }
  std::ranges::sort(kept);
  for (std::string& path : kept) findings.push_back({"set aside", std::move(path)});
}

/// Only the newest one is read: it is the one that is offered.
Finding backups(const host::BackupFolder& folder) {
  try {
    const auto all = folder.backups();
    if (all.empty()) return {"backups", folder.path().string() + ": none yet"};
    const auto newest = host::readBackup(all.front().file);
    if (!newest) return {"backups", describe(newest.error()), true};
    return {"backups", folder.path().string() + ": " + std::to_string(all.size()) + ", the newest of " +
                           host::rfc3339(all.front().date) + " sound, " + counts(*newest)};
  } catch (const std::system_error& error) {
    return {"backups", error.what(), true};
  }
}

/// While it cannot be used they go beside the history.
void addChosenFolder(std::vector<Finding>& findings, const host::BackupPlace& place) {
  if (place.chosen.empty()) return;
  const std::string found = place.fault ? place.fault.message() + "; backups go beside the history" : "can be written";
  findings.push_back({"backup folder", place.chosen.string() + ": " + found, bool{place.fault}});
}

/// A text among the app's settings; empty where there is none.
std::string setting(const fs::path& settings, std::string_view key) {
  const auto text = isThere(settings) ? host::readTextFile(settings.string()) : std::string{"{}"};
  if (!text) return {};
  try {
    const JSONValue all = adapters::NlohmannDecoder{}.decoded(*text);
    const JSONValue* const found = all.member(key);
    return found && found->text() ? *found->text() : std::string{};
  } catch (const std::exception&) {
    return {};  // the settings are ill, and said to be
  }
}

/// Whether it can be read, not what it holds: it may be gigabytes.
Finding healthData(const fs::path& settings) {
  const std::string path = setting(settings, host::linkedHealthFileKey);
  if (path.empty()) return {"health data", "no file linked"};
  const auto state = host::fileState(path);
  return state ? Finding{"health data", path + ": can be read"}
               : Finding{"health data", describe(state.error().bad), true};
}

Finding timeZone() {
  const auto name = adapters::systemTimeZoneName();
  if (!name) return {"time zone", name.error(), true};
  const auto zone = adapters::loadTimeZone(*name);
  return zone ? Finding{"time zone", *name} : Finding{"time zone", zone.error(), true};
}

Finding zoneData() {
  const std::string version = adapters::timeZoneDataVersion();
  return {"time-zone data", version.empty() ? "of an unknown version" : version};
}

Finding voteServer(std::string address, const URLSession& network) {
  if (address.empty()) return {"vote server", "none named"};
  address.resize(address.find_last_not_of('/') + 1);
  try {
    adapters::awaited<Answer<std::string>>([&](auto completion) {
      network.data(address + "/health", {}, completion);
    }).value();
    return {"vote server", address + ": reachable"};
  } catch (const URLError& error) {
    return {"vote server", error.what(), true};
  }
}

}  // namespace

std::vector<Finding> examine(const DoctorOptions& options, const URLSession& network) {
  const fs::path file = options.database.empty() ? host::ownDatabaseFile() : fs::path{options.database};
  std::vector<Finding> findings{settings("settings", adapters::appDefaultsFile()),
                                settings("shared settings", adapters::groupDefaultsFile()),
                                database(file, !options.database.empty())};
  addSetAside(findings, file);
  const host::BackupPlace place =
      host::backupPlace(file, fs::path{setting(adapters::appDefaultsFile(), host::backupFolderKey)});
  findings.push_back(backups(host::BackupFolder{place.folder()}));
  addChosenFolder(findings, place);
  findings.push_back(healthData(adapters::appDefaultsFile()));
  findings.push_back(timeZone());
  findings.push_back(zoneData());
  findings.push_back({"language", adapters::UserLocale::system().tag()});
  findings.push_back(voteServer(options.tally, network));
  return findings;
}

std::string findingsText(const std::vector<Finding>& findings) {
  constexpr std::size_t width = 17;
  std::string text;
  for (const auto& [name, value, isIll] : findings) {
    text.append(isIll ? "! " : "  ").append(name).append(width - std::min(width, name.size()), ' ');
    text.append(value).append(1, '\n');
  }
  return text;
}

std::string findingsJson(const std::vector<Finding>& findings) {
  using Layout = host::JsonWriter::Layout;
  host::JsonWriter json;
  json.beginObject(Layout::spread);
  json.key("isSound");
  json.boolean(isSound(findings));
  json.key("findings");
  json.beginArray(Layout::spread);
  for (const auto& [name, value, isIll] : findings) {
    json.beginObject(Layout::line);
    json.key("name");
    json.string(name);
    json.key("value");
    json.string(value);
    json.key("isIll");
    json.boolean(isIll);
    json.endObject();
  }
  json.endArray();
  json.endObject();
  return std::move(json).text();
}

bool isSound(const std::vector<Finding>& findings) { return std::ranges::none_of(findings, &Finding::isIll); }

}  // namespace mivo::cli

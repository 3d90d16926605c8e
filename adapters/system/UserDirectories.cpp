// SPDX-License-Identifier: MIT
#include "adapters/system/UserDirectories.h"

#include <cstdlib>

namespace mivo::adapters {
namespace {

namespace fs = std::filesystem;

fs::path directory(const char* variable, const char* belowHome, const char* name = "mivo") {
  const char* named = std::getenv(variable);
  if (named && fs::path{named}.is_absolute()) return fs::path{named} / name;
  const char* home = std::getenv("HOME");
  if (home && fs::path{home}.is_absolute()) return fs::path{home} / belowHome / name;
  return ".mivo";
}

}  // namespace

fs::path configurationDirectory() { return directory("XDG_CONFIG_HOME", ".config"); }

fs::path dataDirectory() { return directory("XDG_DATA_HOME", ".local/share"); }

fs::path autostartDirectory() { return directory("XDG_CONFIG_HOME", ".config", "autostart"); }

fs::path appDefaultsFile() { return configurationDirectory() / "app.json"; }

fs::path groupDefaultsFile() { return configurationDirectory() / "group.json"; }

}  // namespace mivo::adapters

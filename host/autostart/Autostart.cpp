// SPDX-License-Identifier: MIT
#include "host/autostart/Autostart.h"

#include <algorithm>
#include <fstream>
#include <string_view>

#include "adapters/system/AtomicFile.h"
#include "adapters/system/UserDirectories.h"

namespace mivo::host {
namespace {

namespace fs = std::filesystem;

// An argument in quotes, and then the whole as the file has texts: a backslash is doubled once for each.
std::string inQuotes(std::string_view argument) {
  std::string text = "\"";
  for (const char letter : argument) {
    if (letter == '\\')
      text += R"(\\\\)";
    else if (letter == '"' || letter == '`' || letter == '$')
      text.append(R"(\\)") += letter;
    else
      text.append(letter == '%' ? 1 : 0, '%') += letter;
  }
  return text + '"';
}

std::string execLine(const Command& command) {
  std::string line = "Exec=";
  for (const std::string& argument : command) line.append(line.back() == '=' ? 0 : 1, ' ') += inQuotes(argument);
  return line;
}

bool hasLine(const fs::path& file, std::string_view wanted) {
  std::ifstream lines{file};
  for (std::string line; std::getline(lines, line);)
    if (line == wanted) return true;
  return false;
}

}  // namespace

fs::path autostartFile() { return adapters::autostartDirectory() / "mivo-reminder.desktop"; }

void startAtLogin(const fs::path& file, const Command& command) {
  const std::string exec = execLine(command);
  if (hasLine(file, exec)) return;
  adapters::writeAtomically(file,
                            "[Desktop Entry]\nType=Application\nName=Mivo\nIcon=mivo\nNoDisplay=true\n" + exec + '\n');
}

void startNoLongerAtLogin(const fs::path& file) { fs::remove(file); }

}  // namespace mivo::host

// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace mivo::host {

// The file by which a desktop starts a program whenever the user logs in, in the form that all desktops read.

/// A program and its arguments, by its whole path.
using Command = std::vector<std::string>;

/// Where the user's desktop looks for the one that tells of fasts: "autostart/mivo-reminder.desktop" in the user's
/// configuration.
std::filesystem::path autostartFile();

/// Has the desktop start `command` from the next login on. A file that names it already is left alone: the user may
/// have switched it off in the desktop's own settings, which write into it. Throws std::system_error.
void startAtLogin(const std::filesystem::path& file, const Command& command);

/// Takes the file away, if it is there. Throws std::system_error.
void startNoLongerAtLogin(const std::filesystem::path& file);

}  // namespace mivo::host

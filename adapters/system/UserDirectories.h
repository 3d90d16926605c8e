// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace mivo::adapters {

// The folders that the desktop's base-directory convention gives a user's files; they need not exist yet. Where the
// variable is unset or not absolute and there is no home either, the folder is the working directory's ".mivo".

/// $XDG_CONFIG_HOME/mivo, else ~/.config/mivo: settings.
std::filesystem::path configurationDirectory();
/// $XDG_DATA_HOME/mivo, else ~/.local/share/mivo: the history.
std::filesystem::path dataDirectory();

/// $XDG_CONFIG_HOME/autostart, else ~/.config/autostart: what the desktop starts when the user logs in.
std::filesystem::path autostartDirectory();

/// The settings of the app, for `FileUserDefaults`.
std::filesystem::path appDefaultsFile();
/// Those that the app shares with its widgets.
std::filesystem::path groupDefaultsFile();

}  // namespace mivo::adapters

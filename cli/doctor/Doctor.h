// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "cli/network/NetworkOptions.h"
#include "mivo/platform/URLSession.h"

namespace mivo::cli {

/// Something that was looked at.
struct Finding {
  std::string name;   ///< "database"
  std::string value;  ///< where it is and how it is
  bool isIll = false;
  bool operator==(const Finding&) const = default;
};

/// Looks at the settings, the database, what was set aside of damaged ones, its backups and the folder that was chosen
/// for them, the linked health export, the time zone and its data, the language, and the vote server, where one is
/// named. What is not there yet is no illness. Nothing is changed, not even mended.
std::vector<Finding> examine(const DoctorOptions& options, const URLSession& network);

/// A line for each, those that are ill marked by "!".
std::string findingsText(const std::vector<Finding>& findings);
/// {"isSound": true, "findings": [{"name", "value", "isIll"}]}
std::string findingsJson(const std::vector<Finding>& findings);

bool isSound(const std::vector<Finding>& findings);

}  // namespace mivo::cli

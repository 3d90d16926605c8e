// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace mivo::host {

struct Version {
  std::string name, number;
};

/// What decides about figures, texts and records on this machine: its time-zone data ("unknown" where the database does
/// not say), then the libraries, each as it was loaded or, where it is headers alone, as it was built in.
std::vector<Version> versionsInUse();

/// A program's answer to --version, without the last line's end: "mivo 0.1.0", and a line for each of `details`.
std::string versionText(const std::string& program, const std::vector<Version>& details);

}  // namespace mivo::host

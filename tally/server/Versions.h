// SPDX-License-Identifier: MIT
#pragma once
#include <string>

namespace mivo::tally {

/// "mivo-tally 0.1.0", and where it is asked for, a line each, what of others it runs with.
std::string versionText(bool withLibraries);

}  // namespace mivo::tally

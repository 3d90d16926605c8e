// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace mivo::cli {

/// Goes on as another of Mivo's programs, which is installed beside this one, with the arguments that are given. Comes
/// back only where that fails, having said why, with the exit status.
int becomeProgram(const std::string& name, std::vector<std::string> arguments);

}  // namespace mivo::cli

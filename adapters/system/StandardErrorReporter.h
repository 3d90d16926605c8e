// SPDX-License-Identifier: MIT
#pragma once

#include "mivo/platform/IssueReporting.h"

namespace mivo::adapters {

/// Prints runtime issues on standard error, a line each; lines of several threads do not mix.
class StandardErrorReporter final : public IssueReporter {
 public:
  void report(std::string_view message, const std::source_location& where) const override;
};

}  // namespace mivo::adapters

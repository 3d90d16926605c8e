// SPDX-License-Identifier: MIT
#pragma once

#include "cli/report/ReportOptions.h"

namespace mivo::cli {

/// Reads the history, computes and prints. The exit status: 0; 1 for bad data or an output that fails; 2 for options
/// that are wrong. With other than 0, one line is on standard error and nothing on standard output.
int runReport(const ReportOptions& options);

}  // namespace mivo::cli

// SPDX-License-Identifier: MIT
#pragma once

namespace mivo::host {

/// What is taken out into a file of its own: all of it as a snapshot, a table, or the statistics as others may see
/// them.
enum class ExportedPart { everything, fasts, weights, pages, picture };

/// What of the weights others may see on a printed screen.
enum class PrintedWeights { hidden, shown };

}  // namespace mivo::host

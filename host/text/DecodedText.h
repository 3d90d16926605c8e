// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <tl/expected.hpp>

#include "host/text/BadRecord.h"

namespace mivo::host {

/// Larger files are refused, so that none takes the machine's memory; a million fasts take half of it.
inline constexpr std::size_t largestFileInBytes = std::size_t{1} << 28;

/// The contents of a file as UTF-8 without byte-order mark. UTF-16 is read where a byte-order mark announces it.
/// Whether the rest is UTF-8 is checked by whoever reads the text, who can name the line. `file` is the name for
/// sentences.
tl::expected<std::string, BadRecord> decodedText(std::string bytes, const std::string& file);

}  // namespace mivo::host

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <tl/expected.hpp>

#include "host/text/BadRecord.h"
#include "host/text/DecodedText.h"

namespace mivo::host {

/// The contents of a file as `decodedText` has them.
tl::expected<std::string, BadRecord> readTextFile(const std::string& path, std::size_t largest = largestFileInBytes);

/// The same of a file, or of standard input where the path is "-"; and what a sentence calls it.
tl::expected<std::string, BadRecord> readTextInput(const std::string& path);
std::string inputName(const std::string& path);

}  // namespace mivo::host

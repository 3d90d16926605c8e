// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace mivo::host {

/// The character that begins at `next`, which is moved past it; negative for a byte that begins none of UTF-8.
std::int32_t takeCharacter(std::string_view text, std::size_t& next);

/// Whether all of a text is UTF-8.
bool isUtf8(std::string_view text);

/// Up to U+10FFFF.
void appendCharacter(std::string& text, std::uint32_t character);

}  // namespace mivo::host

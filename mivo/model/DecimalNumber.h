// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

namespace mivo {

/// Takes the decimal number that the text begins with off it.
///
///     std::string_view text = "81.40 kg";
///     takeDecimalNumber(text);  // 81.4, and " kg" is left
///
/// text   a minus or none, digits with at most one point before, among or behind them, an exponent or none ("1.5e-3").
///        What does not belong to the number stays, such as the "e" of "81e". A plus, a blank or "inf" begins none.
/// Result the double that is nearest, of two the even one, whatever the locale of the process. Nothing, with all of the
///        text left, where there is no number, and where it is too large for a double or too near 0 but not 0.
/// Cost   O(length); more than 15 digits, or exponents beyond 22, take some 100 ns and an allocation more. Thread: any.
std::optional<double> takeDecimalNumber(std::string_view& text);

/// The same of a text that is a number and nothing else.
std::optional<double> readDecimalNumber(std::string_view text);

}  // namespace mivo

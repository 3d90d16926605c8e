// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace mivo {

/// Marks an English text that is looked up later, so that it gets into the catalogues.
constexpr std::string_view translatable(std::string_view english) { return english; }

/// The same for a text around a range's word, which many languages inflect: the catalogues hold it once a range, under
/// the range's raw value as context, and once without.
constexpr std::string_view translatableByRange(std::string_view english) { return english; }

}  // namespace mivo

// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace mivo {

// Names of the source, as the compiler spells them, for messages.

/// "didTapBar": the last part of a type's or an enumerator's name, as the compiler spells it, without what stands in
/// angle brackets behind it.
constexpr std::string_view lastNamePart(std::string_view name) {
  std::size_t begin = 0, end = std::string_view::npos, depth = 0;
  for (std::size_t at = 0; at < name.size(); ++at) {
    const char c = name[at];
    if (c == '<' && depth++ == 0) end = at;
    if (c == '>') --depth;
    if (depth > 0) continue;
    if (c == ';' || c == ']') name = name.substr(0, at);
    if (c == ':') begin = at + 1, end = std::string_view::npos;
  }
  return name.substr(begin, end == std::string_view::npos ? end : end - begin);
}

template <class Type>
constexpr std::string_view typeName() {
  const std::string_view pretty = __PRETTY_FUNCTION__;
  return lastNamePart(pretty.substr(pretty.find("Type = ") + 7));
}

template <auto enumerator>
constexpr std::string_view enumeratorName() {
  const std::string_view pretty = __PRETTY_FUNCTION__;
  const std::string_view name = pretty.substr(pretty.find("enumerator = ") + 13);
  return name.front() == '(' ? std::string_view{} : lastNamePart(name);
}

/// The names of the values 0 to 31; an empty one for a value without a name.
template <class Enumeration>
  requires std::is_enum_v<Enumeration>
inline constexpr auto enumeratorNames = []<std::size_t... index>(std::index_sequence<index...>) {
  return std::array{enumeratorName<static_cast<Enumeration>(index)>()...};
}(std::make_index_sequence<32>{});

/// "week"; the number of a value outside the first 32, or without a name.
template <class Enumeration>
  requires std::is_enum_v<Enumeration>
std::string enumeratorText(Enumeration value) {
  constexpr const auto& names = enumeratorNames<Enumeration>;
  const auto number = static_cast<long long>(value);
  const bool isNamed = number >= 0 && number < 32 && !names[static_cast<std::size_t>(number)].empty();
  return isNamed ? std::string{names[static_cast<std::size_t>(number)]} : std::to_string(number);
}

/// "timeRange", for `&State::timeRange`.
template <auto member>
constexpr std::string_view memberName() {
  const std::string_view pretty = __PRETTY_FUNCTION__;
  return lastNamePart(pretty.substr(pretty.find("member = ") + 9));
}

}  // namespace mivo

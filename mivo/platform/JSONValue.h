// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace mivo {

/// What a JSON text says. Whole numbers that an int64 holds are such, all others doubles; an object keeps the order of
/// its members, and the last of equal keys counts.
struct JSONValue {
  using Array = std::vector<JSONValue>;
  struct Member;
  using Object = std::vector<Member>;

  std::variant<std::monostate, bool, std::int64_t, double, std::string, Array, Object> content;

  /// A member of an object; null where this is no object, has no such member, or the member is null itself.
  const JSONValue* member(std::string_view key) const;

  /// Missing where it is something else. A number counts as whole where its value is, however it is written (7.0).
  std::optional<std::int64_t> whole() const;
  const std::string* text() const { return std::get_if<std::string>(&content); }
  const Array* array() const { return std::get_if<Array>(&content); }
  const Object* object() const { return std::get_if<Object>(&content); }
  bool isNull() const { return std::holds_alternative<std::monostate>(content); }

  bool operator==(const JSONValue&) const;
};

struct JSONValue::Member {
  std::string name;
  JSONValue value;
  bool operator==(const Member&) const = default;
};

inline bool JSONValue::operator==(const JSONValue&) const = default;

/// A text that is not JSON, or whose JSON is not what was expected; `what()` is one sentence that says where.
class DecodingError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Runs `decode`; an error says in front where it happened.
template <class Decode>
auto decodedAt(std::string_view place, Decode decode) {
  try {
    return decode();
  } catch (const DecodingError& error) {
    throw DecodingError{std::string{place} + ": " + error.what()};
  }
}

/// Decodes a member, null where there is none; an error names it.
template <class Decode>
auto decodedMember(const JSONValue& object, std::string_view key, Decode decode) {
  const JSONValue* member = object.member(key);
  return decodedAt(key, [&] { return decode(member ? *member : JSONValue{}); });
}

/// Decodes JSON texts. Thread: any.
class JSONDecoder {
 public:
  virtual ~JSONDecoder() = default;
  /// Throws DecodingError for what is not one JSON text, or is nested deeper than anything that is meant well.
  virtual JSONValue decoded(std::string_view text) const = 0;
};

}  // namespace mivo

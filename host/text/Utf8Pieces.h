// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mivo::host {

/// Turns a text that comes in pieces into UTF-8 without byte-order mark, as `decodedText` does with a whole one: UTF-16
/// is read where a mark announces it, anything else is handed on as it is.
class Utf8Pieces {
 public:
  /// What is known of the text by now; it lives until the next call. Nothing where UTF-16 was announced and is none.
  std::optional<std::string_view> feed(std::string_view bytes);
  /// What is left at the end of the text.
  std::optional<std::string_view> finish();

 private:
  enum class Form { unknown, utf8, littleEndian, bigEndian };

  std::optional<std::string_view> begin(bool isWhole);
  bool decode(std::string_view bytes);

  Form form = Form::unknown;
  std::string held;  // bytes before the form is known, then the text of the last piece
  std::optional<unsigned char> half;
  std::uint32_t lead = 0;  // of a surrogate pair
};

}  // namespace mivo::host

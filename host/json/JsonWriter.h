// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mivo::host {

/// Writes JSON for people and programs: what is long is spread over lines, what is short stays on one. For a page that
/// another thread draws, all of it is one line, and dates are numbers.
///
///     JsonWriter json;
///     json.beginObject(JsonWriter::Layout::line);
///     json.key("weightInKg");
///     json.number(81.4);
///     json.endObject();
///     std::move(json).text();  // {"weightInKg": 81.4}
///
/// Begin and end must match, and in an object a key comes before each value (asserted).
class JsonWriter {
 public:
  enum class Layout { spread, line };
  enum class Reader { anybody, page };

  explicit JsonWriter(Reader reads = Reader::anybody) : reader{reads} {}

  bool isForPage() const { return reader == Reader::page; }

  void beginObject(Layout layout) { begin('{', layout); }
  void endObject() { end('}'); }
  void beginArray(Layout layout) { begin('[', layout); }
  void endArray() { end(']'); }

  void key(std::string_view name);

  /// UTF-8.
  void string(std::string_view text);
  /// As few digits as read back to the same number; what is not finite as "nan", "inf" or "-inf".
  void number(double value);
  void number(std::int64_t value);
  void boolean(bool value);
  void null();

  /// The whole text, ending in a line break; without one for a page.
  std::string text() &&;

 private:
  struct Level {
    Layout layout;
    bool isEmpty = true;
  };

  void begin(char bracket, Layout layout);
  void end(char bracket);
  void beginValue();
  void separate();
  void breakLine();
  void quote(std::string_view text);

  Reader reader;
  std::string out;
  std::vector<Level> levels;
  bool isAfterKey = false;
};

}  // namespace mivo::host

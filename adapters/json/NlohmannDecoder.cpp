// SPDX-License-Identifier: MIT
#include "adapters/json/NlohmannDecoder.h"

#include <limits>
#include <nlohmann/json.hpp>
#include <vector>

namespace mivo::adapters {
namespace {

using nlohmann::json;

/// Builds the value while the text is read; its base names the calls.
class Builder final : public nlohmann::json_sax<json> {
 public:
  JSONValue root;

  bool null() override { return add({}); }
  bool boolean(bool value) override { return add({value}); }
  bool number_integer(std::int64_t value) override { return add({value}); }
  bool number_unsigned(std::uint64_t value) override {
    constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    return value > largest ? add({static_cast<double>(value)}) : add({static_cast<std::int64_t>(value)});
  }
  bool number_float(double value, const std::string&) override { return add({value}); }
  bool string(std::string& value) override { return add({std::move(value)}); }
  bool binary(json::binary_t&) override { return false; }  // JSON texts have none

  bool start_object(std::size_t) override { return open({JSONValue::Object{}}); }
  bool key(std::string& name) override {
    std::get<JSONValue::Object>(containers.back()->content).push_back({std::move(name), JSONValue{}});
    return true;
  }
  bool end_object() override { return close(); }
  bool start_array(std::size_t) override { return open({JSONValue::Array{}}); }
  bool end_array() override { return close(); }

  bool parse_error(std::size_t, const std::string&, const json::exception& error) override {
    throw DecodingError{std::string{"not JSON: "} + error.what()};
  }

 private:
  /// Where the value that comes next belongs. Only the innermost container grows, so the addresses of those around it
  /// stay good.
  JSONValue& place() {
    if (containers.empty()) return root;
    auto& content = containers.back()->content;
    if (auto* members = std::get_if<JSONValue::Object>(&content)) return members->back().value;
    return std::get<JSONValue::Array>(content).emplace_back();
  }

  bool add(JSONValue value) {
    place() = std::move(value);
    return true;
  }

  bool open(JSONValue container) {
    if (containers.size() == NlohmannDecoder::deepest)
      throw DecodingError{"nested deeper than " + std::to_string(NlohmannDecoder::deepest) + " levels"};
    JSONValue& opened = place();
    opened = std::move(container);
    containers.push_back(&opened);
    return true;
  }

  bool close() {
    containers.pop_back();
    return true;
  }

  std::vector<JSONValue*> containers;  // from the outermost to the innermost one that is open
};

}  // namespace

JSONValue NlohmannDecoder::decoded(std::string_view text) const {
  // The library takes it for the end.
  if (text.find('\0') != std::string_view::npos) throw DecodingError{"not JSON: it has a byte of value 0"};
  Builder builder;
  json::sax_parse(text, &builder);
  return std::move(builder.root);
}

}  // namespace mivo::adapters

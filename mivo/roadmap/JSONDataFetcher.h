// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <stdexcept>
#include <stop_token>
#include <string>
#include <string_view>

#include "mivo/platform/JSONValue.h"
#include "mivo/platform/URLSession.h"

namespace mivo {

/// What can be read from JSON: `static Type decoded(const JSONValue&)`, which throws DecodingError.
template <class Type>
concept JSONDecodable = requires(const JSONValue& value) {
  { Type::decoded(value) } -> std::same_as<Type>;
};

/// Loads a JSON text from an address and decodes it.
struct JSONDataFetcher {
  /// A fault that is seen before anything is asked.
  class Error : public std::runtime_error {
   public:
    enum Case { invalidURL };
    Error(Case errorCase, std::string_view url);
    Case errorCase;
  };

  /// With the URL session and the JSON decoder of the current dependencies. Throws Error for what is no absolute URL
  /// (RFC 3986: a space or a letter outside ASCII makes it none), URLError where there is no answer, DecodingError
  /// where the answer is not what was expected. Blocks.
  template <JSONDecodable Type>
  static Type loadJSON(std::string_view url, std::stop_token stop = {}) {
    return Type::decoded(load(url, std::move(stop), &URLSession::data));
  }

  /// The same for an address that changes something: the request goes out once at most.
  template <JSONDecodable Type>
  static Type loadJSONOnce(std::string_view url) {
    return Type::decoded(load(url, {}, &URLSession::dataSentOnce));
  }

 private:
  using Request = std::string (URLSession::*)(std::string_view, std::stop_token) const;
  static JSONValue load(std::string_view url, std::stop_token stop, Request request);
};

}  // namespace mivo

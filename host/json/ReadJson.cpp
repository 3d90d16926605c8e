// SPDX-License-Identifier: MIT
#include "host/json/ReadJson.h"

namespace mivo::host {

std::string describe(const JsonFault& fault) {
  return fault.path.empty() ? fault.reason : fault.path + ": " + fault.reason;
}

JsonRead<rapidjson::Document> parseJson(std::string_view text) {
  constexpr unsigned options =
      rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseFullPrecisionFlag;
  if (text.size() > longestJson) return expectedInJson("at most " + std::to_string(longestJson) + " bytes of JSON");
  rapidjson::Document document;
  document.Parse<options>(text.data(), text.size());
  const std::size_t end = text.find('\0');  // the parser takes it for the end
  if (document.HasParseError() || end != std::string_view::npos)
    return expectedInJson("JSON, found something else at byte " +
                          std::to_string(document.HasParseError() ? document.GetErrorOffset() : end));
  return document;
}

}  // namespace mivo::host

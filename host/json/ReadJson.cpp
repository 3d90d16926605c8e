// SPDX-License-Identifier: MIT
#include "host/json/ReadJson.h"

#include "adapters/json/NlohmannDecoder.h"

namespace mivo::host {

std::string describe(const JsonFault& fault) {
  return fault.path.empty() ? fault.reason : fault.path + ": " + fault.reason;
}

JsonRead<JSONValue> parseJson(std::string_view text) {
  if (text.size() > longestJson) return expectedInJson("at most " + std::to_string(longestJson) + " bytes of JSON");
  try {
    return adapters::NlohmannDecoder{}.decoded(text);
  } catch (const DecodingError& error) {
    return tl::unexpected{JsonFault{{}, error.what()}};
  }
}

}  // namespace mivo::host

// SPDX-License-Identifier: MIT
#include "host/text/DecodedText.h"

#include "host/text/Utf8Pieces.h"

namespace mivo::host {

tl::expected<std::string, BadRecord> decodedText(std::string bytes, const std::string& file) {
  const std::string_view text = bytes;
  if (text.starts_with("\xEF\xBB\xBF")) return bytes.erase(0, 3);
  if (!text.starts_with("\xFF\xFE") && !text.starts_with("\xFE\xFF")) return bytes;
  Utf8Pieces pieces;
  if (const auto begun = pieces.feed(text)) {
    std::string decoded{*begun};
    if (const auto rest = pieces.finish()) return decoded.append(*rest);
  }
  return tl::unexpected{BadRecord{.file = file, .reason = "expected UTF-16 text, as its first two bytes announce"}};
}

}  // namespace mivo::host

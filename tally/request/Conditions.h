// SPDX-License-Identifier: MIT
#pragma once
#include <string_view>

namespace mivo::tally {

/// Whether a client that sent this Accept-Encoding unpacks gzip: it names it, or everything with `*`, and not with a
/// weight of 0.
///
///     acceptsGzip("br, gzip;q=0.5");     // true
///     acceptsGzip("gzip;q=0, deflate");  // false
bool acceptsGzip(std::string_view acceptEncoding);

/// Whether If-None-Match names the tag, quotes and all, or any (`*`). A weak one, which a proxy may have made of ours,
/// is as good.
///
///     namesTag("\"a\", W/\"b\"", "\"b\"");  // true
bool namesTag(std::string_view ifNoneMatch, std::string_view tag);

}  // namespace mivo::tally

// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace mivo {

/// The servers of the roadmap, each without a slash at its end ("https://example.org"). An empty one is as good as a
/// server that is away.
struct ServerAddresses {
  std::string tally;    ///< counts votes
  std::string roadmap;  ///< has the list of features under /data/roadmap-mivo.json
  bool operator==(const ServerAddresses&) const = default;
};

}  // namespace mivo

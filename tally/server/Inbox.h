// SPDX-License-Identifier: MIT
#pragma once
#include <cstddef>
#include <string_view>
#include <vector>

#include "tally/net/Asio.h"

namespace mivo::tally {

/// What a client has sent and nobody has read yet. It grows only for a request that needs it, so that an idle
/// connection holds little, and never beyond the largest request and a kilobyte.
class Inbox {
 public:
  /// Where the next bytes may be written, at least one: `took` says how many were. Ends what `unread` gave.
  asio::mutable_buffer room();
  void took(std::size_t size) { end += size; }
  std::string_view unread() const { return {bytes.data() + begin, end - begin}; }
  void drop(std::size_t size) { begin += size; }
  void clear() { begin = end = 0; }
  bool isEmpty() const { return begin == end; }
  /// Bytes of memory that it holds.
  std::size_t size() const { return bytes.size(); }

 private:
  std::vector<char> bytes;  // what is unread lies in [begin, end)
  std::size_t begin = 0;
  std::size_t end = 0;
};

}  // namespace mivo::tally

// SPDX-License-Identifier: MIT
#include "tally/server/Inbox.h"

#include <algorithm>

#include "tally/request/RequestReader.h"

namespace mivo::tally {
namespace {

constexpr std::size_t usualInbox = 1024;
constexpr std::size_t largestInbox = largestRequest + usualInbox;

}  // namespace

asio::mutable_buffer Inbox::room() {
  if (isEmpty()) clear();
  if (end == 0 && bytes.size() != usualInbox) bytes = std::vector<char>(usualInbox);
  if (end == bytes.size() && begin > 0) {
    std::copy(bytes.begin() + static_cast<std::ptrdiff_t>(begin), bytes.end(), bytes.begin());
    end -= begin;
    begin = 0;
  }
  if (end == bytes.size()) bytes.resize(std::min(2 * bytes.size(), largestInbox));
  return asio::buffer(bytes.data() + end, bytes.size() - end);
}

}  // namespace mivo::tally

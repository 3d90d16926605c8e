// SPDX-License-Identifier: MIT
#include "tally/server/Inbox.h"

#include <algorithm>

#include "tally/request/RequestReader.h"

namespace mivo::tally {
namespace {

constexpr std::size_t usualSize = 1024;
constexpr std::size_t largestSize = largestRequest + usualSize;

}  // namespace

asio::mutable_buffer Inbox::room() {
  if (isEmpty()) clear();
  if (end == 0 && bytes.size() != usualSize) bytes = std::vector<char>(usualSize);
  if (end == bytes.size() && begin > 0) {
    std::copy(bytes.begin() + static_cast<std::ptrdiff_t>(begin), bytes.end(), bytes.begin());
    end -= begin;
    begin = 0;
  }
  if (end == bytes.size()) bytes.resize(std::min(2 * bytes.size(), largestSize));
  return asio::buffer(bytes.data() + end, bytes.size() - end);
}

}  // namespace mivo::tally

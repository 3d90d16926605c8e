// SPDX-License-Identifier: MIT
#include "tally/server/Outbox.h"

#include <algorithm>

namespace mivo::tally {
namespace {

constexpr std::size_t usualOutbox = 4 << 10;

}  // namespace

void Outbox::append(const Answer& answer, const AnswerFrame& frame) {
  appendAnswer(own, answer, frame);
  if (frame.withBody && answer.shared && !answer.shared->empty()) shared = answer.shared;
}

std::array<asio::const_buffer, 2> Outbox::unsent() const {
  if (!shared) return {asio::buffer(own), asio::const_buffer{}};
  return {asio::buffer(own), asio::buffer(*shared) + sharedSent};
}

void Outbox::sent(std::size_t size) {
  const auto ofOwn = std::min(size, own.size());
  own.erase(0, ofOwn);
  if (own.capacity() > 2 * own.size() + usualOutbox) own.shrink_to_fit();  // the rest may wait for long
  sharedSent += size - ofOwn;
  if (shared && sharedSent == shared->size()) clear();
}

void Outbox::clear() {
  own.clear();
  if (own.capacity() > usualOutbox) own.shrink_to_fit();
  shared = nullptr;
  sharedSent = 0;
}

}  // namespace mivo::tally

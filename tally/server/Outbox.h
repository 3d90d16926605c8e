// SPDX-License-Identifier: MIT
#pragma once
#include <array>
#include <memory>
#include <string>

#include "tally/net/Asio.h"
#include "tally/request/Answer.h"

namespace mivo::tally {

/// Answers on their way to a client: its own bytes, and behind them what it shares with others.
class Outbox {
 public:
  /// Must not be full.
  void append(const Answer& answer, const AnswerFrame& frame);
  bool isEmpty() const { return own.empty() && !shared; }
  /// Where the client takes no answers, no further ones are made: 16 KB wait for it, or one shared body.
  bool isFull() const { return shared || own.size() >= mostOwnBytes; }
  /// What waits, in order. Valid until the next call of another function.
  std::array<asio::const_buffer, 2> unsent() const;
  /// So many bytes of it were handed over.
  void sent(std::size_t size);
  void clear();
  /// Bytes of memory that are held for this client alone.
  std::size_t ownBytes() const { return own.capacity(); }

  static constexpr std::size_t mostOwnBytes = 16 << 10;

 private:
  std::string own;
  std::shared_ptr<const std::string> shared;
  std::size_t sharedSent = 0;
};

}  // namespace mivo::tally

// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <functional>
#include <list>
#include <memory>
#include <string>

#include "tally/net/Stream.h"
#include "tally/request/Request.h"
#include "tally/server/Inbox.h"
#include "tally/server/Log.h"
#include "tally/server/Service.h"
#include "tally/store/OperationQueue.h"

namespace mivo::tally {

class Connection;
/// Open connections, the one that was silent longest first.
using Connections = std::list<std::shared_ptr<Connection>>;

/// What all connections share.
struct Workplace {
  const ServeOptions& options;
  Service& service;
  OperationQueue& operations;
  Log& log;
  Metrics& metrics;
  Connections& connections;
  std::function<void()> didClose;  // a connection left the list
};

/// One client: reads requests, answers them in order, many in one write where they came together.
class Connection : public std::enable_shared_from_this<Connection> {
 public:
  using Instant = std::chrono::steady_clock::time_point;

  Connection(Stream stream, const Workplace& workplace, asio::ip::address peer);

  /// Begins, once the connection stands in the list.
  void start(Connections::iterator place);
  /// Cuts off what took too long: with 408 in the middle of a request, without a word between two.
  void checkDeadline(Instant now);
  /// The next answer says that it is the last. A request may be on its way to an idle connection, so it is waited for.
  void drain(Instant now);
  /// In every phase but the one in which the store is asked: a client can be slow at a handshake and at reading too.
  bool isWaitingForClient() const { return phase_ != Phase::asking; }
  void close();

 private:
  enum class Phase { handshaking, idle, receiving, asking, sending, parting, closed };

  void enter(Phase phase, Instant deadline);
  void awaitRequest();
  void read();
  void didRead(std::size_t size);
  void answerWhatCame();
  bool takeRequest();
  void ask(Operation operation);
  void refuse(const Refusal& refusal);
  void finish(Answer answer);
  void log(const Answer& answer);
  void write();
  void didWrite();
  void part();
  asio::ip::address client() const;

  Stream stream_;
  const Workplace& work_;
  asio::ip::address peer_;
  Connections::iterator place_;
  Phase phase_ = Phase::handshaking;
  Instant deadline_;
  Inbox inbox_;
  std::string outbox_;
  Request request_;  // being answered; its views are into inbox_
  Instant received_;
  bool isReading_ = false;
  bool wasRefused_ = false;
  bool keepAlive_ = true;
  bool isDraining_ = false;
};

}  // namespace mivo::tally

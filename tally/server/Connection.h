// SPDX-License-Identifier: MIT
#pragma once
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "tally/net/Stream.h"
#include "tally/request/Request.h"
#include "tally/server/Crowd.h"
#include "tally/server/Inbox.h"
#include "tally/server/Log.h"
#include "tally/server/Outbox.h"
#include "tally/server/Service.h"
#include "tally/store/OperationQueue.h"

namespace mivo::tally {

/// What all connections share.
struct Workplace {
  const ServeOptions& options;
  Service& service;
  OperationQueue& operations;
  Log& log;
  Metrics& metrics;
  Crowd& crowd;
  std::function<void()> didClose;  // a connection left the list
};

/// One client: reads requests, answers them in order, many in one write where they came together.
class Connection : public std::enable_shared_from_this<Connection> {
 public:
  using Instant = std::chrono::steady_clock::time_point;

  /// Under TLS where there is a certificate, which is held until the handshake begins.
  Connection(tcp::socket socket, std::shared_ptr<ssl::context> certificate, const Workplace& workplace,
             asio::ip::address peer, Door door);

  /// Begins, once the connection stands in the list.
  void start(Connections::iterator place);
  /// Cuts off what took too long: with 408 in the middle of a request, without a word between two.
  void checkDeadline(Instant now);
  /// The next answer says that it is the last. A request may be on its way to an idle connection, so it is waited for.
  void drain(Instant now);
  /// In every phase but the one in which the store is asked: a client can be slow at a handshake and at reading too.
  bool isWaitingForClient() const { return phase != Phase::asking; }
  void close();
  /// Closes because a limit was reached.
  void giveWay(Limit limit);

 private:
  enum class Phase { silent, handshaking, idle, receiving, asking, sending, parting, closed };

  void enter(Phase next, Instant until);
  void standIn(Line& line);
  void leaveLine();
  void awaitGreeting();
  void greet();
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
  void holdUnsent();
  void didWrite();
  void part();
  asio::ip::address client() const;

  Stream stream;
  std::shared_ptr<ssl::context> certificate;
  const Workplace& work;
  asio::ip::address peer;
  Door door;
  Connections::iterator listPlace;
  Line ownNode{this};  // this connection's node, while it stands in no line
  Line::iterator nodePlace = ownNode.begin();
  Line* lineStoodIn = nullptr;  // in which it stands
  std::size_t held = 0;         // unsent bytes that the crowd counts
  Phase phase = Phase::silent;
  Instant deadline;
  Inbox inbox;
  Outbox outbox;
  Request request;  // being answered; its views are into inbox
  Instant received;
  bool isReading = false;
  bool keepAlive = true;
  bool isDraining = false;
};

}  // namespace mivo::tally

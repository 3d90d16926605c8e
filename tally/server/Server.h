// SPDX-License-Identifier: MIT
#pragma once
#include <functional>
#include <string_view>

#include "tally/server/Connection.h"
#include "tally/server/Listener.h"

namespace mivo::tally {

/// Listens, and minds the connections: their number, their deadlines, the signals of whoever runs the server.
///
/// SIGTERM and SIGINT: no new connection, what is in flight is finished, then `run` returns; a second one ends it at
/// once. SIGHUP: certificate, roadmap and page are read again; the old one of each stays where the new one cannot be
/// used.
class Server {
 public:
  /// Throws std::runtime_error with one sentence where it cannot listen or read a file.
  Server(asio::io_context& loop, const ServeOptions& options, CounterStore& store, Log& log);
  /// Serves until it is told to stop.
  void run();

 private:
  void listen();
  void add(tcp::socket socket, Door door);
  void makeRoom();
  void checkDeadlines();
  void tellOfCertificate();
  void awaitSignal();
  void reload();
  void reload(std::string_view what, const std::function<void()>& read);
  void stop();
  void stopWhenDone();
  std::string metricsText() const;

  asio::io_context& loop;
  const ServeOptions& options;
  CounterStore& store;
  Log& log;
  Metrics metrics;
  Service service;
  OperationQueue operations;
  Crowd crowd;
  Workplace workplace;
  std::shared_ptr<ssl::context> certificate;
  std::chrono::steady_clock::time_point certificateLook;  // when the log next says how long it is good
  Listener listener;
  Listener adminListener;
  asio::signal_set signals;
  asio::steady_timer second;
  bool isStopping = false;
};

}  // namespace mivo::tally

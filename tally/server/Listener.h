// SPDX-License-Identifier: MIT
#pragma once
#include <functional>
#include <optional>
#include <string>

#include "tally/net/Asio.h"
#include "tally/net/Endpoint.h"

namespace mivo::tally {

/// Takes connections on one address.
class Listener {
 public:
  /// `take` is given each connection; `makeRoom` is called where the process has no descriptor for one.
  Listener(asio::io_context& loop, std::function<void(tcp::socket)> take, std::function<void()> makeRoom);

  /// Throws std::runtime_error with one sentence, which begins with the flag's name, where it cannot listen.
  void listen(const std::string& flag, const Endpoint& wanted);
  /// Goes on with a socket that listens already.
  void adopt(int descriptor);
  void start();
  /// Takes those that the system has connected already, since they were promised an answer, and no further ones.
  void stop();
  /// Where it listens.
  Endpoint endpoint() const;

 private:
  void accept();

  std::function<void(tcp::socket)> take;
  std::function<void()> makeRoom;
  tcp::acceptor acceptor;
  asio::steady_timer again;
};

/// A listening socket that the service manager opened for this process (sd_listen_fds(3)).
struct InheritedSocket {
  int descriptor = -1;
  Endpoint endpoint;
};

/// Nothing where there is none. Throws std::invalid_argument with one sentence where there are several, or it does not
/// listen.
std::optional<InheritedSocket> inheritedSocket();

}  // namespace mivo::tally

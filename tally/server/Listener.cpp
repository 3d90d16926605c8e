// SPDX-License-Identifier: MIT
#include "tally/server/Listener.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <stdexcept>

#include "tally/server/Variable.h"

namespace mivo::tally {
namespace {

constexpr int waitingToBeAccepted = 4096;
constexpr std::chrono::milliseconds acceptPause{100};
constexpr int firstInherited = 3;

Endpoint named(const tcp::endpoint& endpoint) {
  return {endpoint.address().to_string(), std::to_string(endpoint.port())};
}

bool listens(int descriptor) {
  int value = 0;
  socklen_t size = sizeof value;
  return ::getsockopt(descriptor, SOL_SOCKET, SO_ACCEPTCONN, &value, &size) == 0 && value == 1;
}

tcp::endpoint addressOf(int descriptor) {
  tcp::endpoint endpoint;
  auto size = static_cast<socklen_t>(endpoint.capacity());
  if (::getsockname(descriptor, endpoint.data(), &size) == 0) endpoint.resize(size);
  return endpoint;
}

}  // namespace

Listener::Listener(asio::io_context& loop, std::function<void(tcp::socket)> taking, std::function<void()> makingRoom)
    : take{std::move(taking)}, makeRoom{std::move(makingRoom)}, acceptor{loop}, again{loop} {}

void Listener::listen(const std::string& flag, const Endpoint& wanted) {
  try {
    tcp::resolver resolver{acceptor.get_executor()};
    const tcp::endpoint address = *resolver.resolve(wanted.host, wanted.port).begin();
    acceptor.open(address.protocol());
    acceptor.set_option(tcp::acceptor::reuse_address{true});
    acceptor.bind(address);
    acceptor.listen(waitingToBeAccepted);
    acceptor.non_blocking(true);
  } catch (const boost::system::system_error& error) {
    throw std::runtime_error(flag + ' ' + describe(wanted) + ": " + error.code().message());
  }
}

void Listener::adopt(int descriptor) {
  ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
  acceptor.assign(addressOf(descriptor).protocol(), descriptor);
  acceptor.non_blocking(true);
}

void Listener::start() { accept(); }

void Listener::accept() {
  acceptor.async_accept([this](error_code error, tcp::socket socket) {
    if (!acceptor.is_open()) return;
    if (!error) {
      take(std::move(socket));
      return accept();
    }
    if (error == asio::error::connection_aborted) return accept();
    // Out of descriptors: give one back, and do not spin.
    makeRoom();
    again.expires_after(acceptPause);
    again.async_wait([this](error_code cancelled) {
      if (!cancelled) accept();
    });
  });
}

void Listener::stop() {
  error_code error;
  // No more than had room to wait: who goes on connecting must not keep the server from ending.
  for (int taken = 0; taken < waitingToBeAccepted; ++taken) {
    auto socket = acceptor.accept(error);
    if (error) break;
    take(std::move(socket));
  }
  static_cast<void>(acceptor.close(error));
}

Endpoint Listener::endpoint() const { return named(acceptor.local_endpoint()); }

std::optional<InheritedSocket> inheritedSocket() {
  if (variable("LISTEN_PID") != std::to_string(::getpid())) return std::nullopt;
  if (variable("LISTEN_FDS") != "1" || !listens(firstInherited))
    throw std::invalid_argument("the service manager must hand over one socket, and one that listens (LISTEN_FDS)");
  return InheritedSocket{firstInherited, named(addressOf(firstInherited))};
}

}  // namespace mivo::tally

// SPDX-License-Identifier: MIT
#include "tally/server/Server.h"

#include <netinet/tcp.h>

#include <algorithm>
#include <csignal>
#include <stdexcept>
#include <vector>

#include "tally/server/PageFiles.h"
#include "tally/server/Roadmap.h"
#include "tally/server/TlsCertificate.h"

namespace mivo::tally {
namespace {

// Of an answer that the client does not take, so much waits in the kernel and not megabytes; what is on its way does
// not count, so a far client is served no slower.
void boundUnsent(tcp::socket& socket) {
  constexpr int bytes = 16 << 10;
  ::setsockopt(socket.native_handle(), IPPROTO_TCP, TCP_NOTSENT_LOWAT, &bytes, sizeof bytes);
}

}  // namespace

Server::Server(asio::io_context& eventLoop, const ServeOptions& given, CounterStore& counters, Log& lines)
    : loop(eventLoop),
      options(given),
      store(counters),
      log(lines),
      service(
          given, counters, loadRoadmap(given.roadmap), loadPageFiles(given.page),
          [this](const std::string& name) { return certificate && hasName(*certificate, name); },
          [this] { return metricsText(); }),
      operations(eventLoop, counters, [this](std::size_t count) { metrics.batchSent(count); }),
      crowd{.open = {},
            .handshaking = {},
            .sending = {},
            .addresses = AddressLimits{{.connections = given.mostConnectionsOfAnAddress,
                                        .handshakesPerMinute = given.handshakesPerMinute,
                                        .exempt = given.trustedProxies}}},
      workplace{given, service, operations, lines, metrics, crowd, [this] { stopWhenDone(); }},
      listener(
          eventLoop, [this](tcp::socket socket) { add(std::move(socket), Door::everyones); }, [this] { makeRoom(); }),
      adminListener(
          eventLoop, [this](tcp::socket socket) { add(std::move(socket), Door::admins); }, [this] { makeRoom(); }),
      signals(eventLoop, SIGTERM, SIGINT, SIGHUP),
      second(eventLoop) {
  if (!given.certificate.empty()) certificate = loadCertificate(given.certificate, given.key);
  listen();
}

void Server::listen() {
  if (options.inherited) {
    listener.adopt(*options.inherited);
  } else {
    listener.listen("--listen", options.listen);
  }
  if (options.admin) adminListener.listen("--admin", *options.admin);
}

void Server::run() {
  log.event("listening", (certificate ? "https://" : "http://") + describe(listener.endpoint()) + ", votes in " +
                             describe(options.store));
  if (options.admin) log.event("admin", "http://" + describe(adminListener.endpoint()));
  if (options.showsPassword)
    log.event("options", "everyone on this machine can read a password among the flags: use a variable or a file");
  if (options.trustsByOldName)
    log.event("options", "--trust-forwarded-for without networks believes loopback and private addresses: name yours");
  listener.start();
  if (options.admin) adminListener.start();
  checkDeadlines();
  awaitSignal();
  loop.run();
}

void Server::add(tcp::socket socket, Door door) {
  error_code error;
  const auto peer = socket.remote_endpoint(error).address();
  const bool isGone = error || socket.set_option(tcp::no_delay{true}, error) || socket.non_blocking(true, error);
  if (isGone) return;
  boundUnsent(socket);
  const bool isAdmins = door == Door::admins;
  if (!isAdmins && !crowd.addresses.admit(peer)) return metrics.reached(Limit::address);
  if (crowd.open.size() >= options.mostConnections) makeRoom();
  auto shown = isAdmins ? nullptr : certificate;
  crowd.open.push_back(std::make_shared<Connection>(std::move(socket), std::move(shown), workplace, peer, door));
  crowd.open.back()->start(std::prev(crowd.open.end()));
}

// A connection that answers were sent to lately stands behind those that only hold a place.
void Server::makeRoom() {
  const auto silent = std::ranges::find_if(crowd.open, [](const auto& each) { return each->isWaitingForClient(); });
  if (silent != crowd.open.end()) (*silent)->giveWay(Limit::connections);
}

void Server::checkDeadlines() {
  const auto now = std::chrono::steady_clock::now();
  const std::vector<std::shared_ptr<Connection>> all{crowd.open.begin(), crowd.open.end()};
  for (const auto& connection : all) connection->checkDeadline(now);  // after which it, and others, may have left
  if (certificate && now >= certificateLook) {
    certificateLook = now + std::chrono::days{1};
    tellOfCertificate();
  }
  second.expires_after(std::chrono::seconds{1});
  second.async_wait([this](error_code error) {
    if (!error) checkDeadlines();
  });
}

void Server::tellOfCertificate() {
  const auto days = daysLeft(*certificate);
  log.event("certificate", days < 0 ? "has ended" : "ends in " + std::to_string(days) + " days");
}

void Server::awaitSignal() {
  signals.async_wait([this](error_code error, int signal) {
    if (error) return;
    if (signal == SIGHUP) reload();
    if (signal != SIGHUP) isStopping ? loop.stop() : stop();
    awaitSignal();
  });
}

// Each by itself: a slip in the roadmap must not keep a certificate from being renewed.
void Server::reload() {
  reload("roadmap", [this] { service.replaceRoadmap(loadRoadmap(options.roadmap)); });
  if (!options.page.empty()) reload("page", [this] { service.replacePage(loadPageFiles(options.page)); });
  if (!certificate) return;
  reload("certificate", [this] { certificate = loadCertificate(options.certificate, options.key); });
  tellOfCertificate();
}

void Server::reload(std::string_view what, const std::function<void()>& read) {
  try {
    read();
    log.event("reloaded", what);
  } catch (const std::exception& error) {
    log.event("not reloaded", error.what());
  }
}

void Server::stop() {
  isStopping = true;
  listener.stop();
  adminListener.stop();
  log.event("stopping", "finishing what is in flight");
  const auto now = std::chrono::steady_clock::now();
  for (const auto& connection : crowd.open) connection->drain(now);
  stopWhenDone();
}

void Server::stopWhenDone() {
  if (isStopping && crowd.open.empty() && operations.isIdle()) loop.stop();
}

std::string Server::metricsText() const {
  return metrics.text({.openConnections = crowd.open.size(),
                       .unfinishedHandshakes = crowd.handshaking.size(),
                       .unsentBytes = crowd.unsentBytes,
                       .isStoreAvailable = store.isAvailable(),
                       .isStoreDamaged = store.isDamaged(),
                       .writeAheadLogBytes = store.writeAheadLogBytes(),
                       .logLinesLeftOut = log.linesLeftOut(),
                       .certificateDays = certificate ? std::optional{daysLeft(*certificate)} : std::nullopt});
}

}  // namespace mivo::tally

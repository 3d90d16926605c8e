// SPDX-License-Identifier: MIT
#include "tally/server/Server.h"

#include <netinet/tcp.h>

#include <algorithm>
#include <csignal>
#include <stdexcept>

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

Server::Server(asio::io_context& loop, const ServeOptions& options, CounterStore& store, Log& log)
    : loop_(loop),
      options_(options),
      store_(store),
      log_(log),
      service_(
          options, store, loadRoadmap(options.roadmap),
          [this](const std::string& name) { return certificate_ && hasName(*certificate_, name); },
          [this] { return metricsText(); }),
      operations_(loop, store, [this](std::size_t operations) { metrics_.batchSent(operations); }),
      crowd_{.open = {},
             .handshaking = {},
             .sending = {},
             .addresses = AddressLimits{{.connections = options.mostConnectionsOfAnAddress,
                                         .handshakesPerMinute = options.handshakesPerMinute,
                                         .exempt = options.trustedProxies}}},
      workplace_{options, service_, operations_, log, metrics_, crowd_, [this] { stopWhenDone(); }},
      listener_(
          loop, [this](tcp::socket socket) { add(std::move(socket), Door::everyones); }, [this] { makeRoom(); }),
      adminListener_(
          loop, [this](tcp::socket socket) { add(std::move(socket), Door::admins); }, [this] { makeRoom(); }),
      signals_(loop, SIGTERM, SIGINT, SIGHUP),
      second_(loop) {
  if (!options.certificate.empty()) certificate_ = loadCertificate(options.certificate, options.key);
  listen();
}

void Server::listen() {
  if (options_.inherited) {
    listener_.adopt(*options_.inherited);
  } else {
    listener_.listen("--listen", options_.listen);
  }
  if (options_.admin) adminListener_.listen("--admin", *options_.admin);
}

void Server::run() {
  log_.event("listening", (certificate_ ? "https://" : "http://") + describe(listener_.endpoint()) + ", votes in " +
                              describe(options_.store));
  if (options_.admin) log_.event("admin", "http://" + describe(adminListener_.endpoint()));
  if (options_.showsPassword)
    log_.event("options", "everyone on this machine can read a password among the flags: use a variable or a file");
  if (options_.trustsByOldName)
    log_.event("options", "--trust-forwarded-for without networks believes loopback and private addresses: name yours");
  listener_.start();
  if (options_.admin) adminListener_.start();
  checkDeadlines();
  awaitSignal();
  loop_.run();
}

void Server::add(tcp::socket socket, Door door) {
  error_code error;
  const auto peer = socket.remote_endpoint(error).address();
  const bool isGone = error || socket.set_option(tcp::no_delay{true}, error) || socket.non_blocking(true, error);
  if (isGone) return;
  boundUnsent(socket);
  const bool isAdmins = door == Door::admins;
  if (!isAdmins && !crowd_.addresses.admit(peer)) return metrics_.reached(Limit::address);
  if (crowd_.open.size() >= options_.mostConnections) makeRoom();
  auto certificate = isAdmins ? nullptr : certificate_;
  crowd_.open.push_back(
      std::make_shared<Connection>(std::move(socket), std::move(certificate), workplace_, peer, door));
  crowd_.open.back()->start(std::prev(crowd_.open.end()));
}

// A connection that answers were sent to lately stands behind those that only hold a place.
void Server::makeRoom() {
  const auto silent = std::ranges::find_if(crowd_.open, [](const auto& each) { return each->isWaitingForClient(); });
  if (silent != crowd_.open.end()) (*silent)->giveWay(Limit::connections);
}

void Server::checkDeadlines() {
  const auto now = std::chrono::steady_clock::now();
  for (auto next = crowd_.open.begin(); next != crowd_.open.end();) {
    const auto connection = *next++;  // which may leave the list
    connection->checkDeadline(now);
  }
  if (certificate_ && now >= certificateLook_) {
    certificateLook_ = now + std::chrono::days{1};
    tellOfCertificate();
  }
  second_.expires_after(std::chrono::seconds{1});
  second_.async_wait([this](error_code error) {
    if (!error) checkDeadlines();
  });
}

void Server::tellOfCertificate() {
  const auto days = daysLeft(*certificate_);
  log_.event("certificate", days < 0 ? "has ended" : "ends in " + std::to_string(days) + " days");
}

void Server::awaitSignal() {
  signals_.async_wait([this](error_code error, int signal) {
    if (error) return;
    if (signal == SIGHUP) reload();
    if (signal != SIGHUP) isStopping_ ? loop_.stop() : stop();
    awaitSignal();
  });
}

void Server::reload() {
  try {
    service_.replaceRoadmap(loadRoadmap(options_.roadmap));
    if (certificate_) certificate_ = loadCertificate(options_.certificate, options_.key);
    if (certificate_) tellOfCertificate();
    log_.event("reloaded", certificate_ ? "certificate and roadmap" : "roadmap");
  } catch (const std::exception& error) {
    log_.event("not reloaded", error.what());
  }
}

void Server::stop() {
  isStopping_ = true;
  listener_.stop();
  adminListener_.stop();
  log_.event("stopping", "finishing what is in flight");
  const auto now = std::chrono::steady_clock::now();
  for (auto next = crowd_.open.begin(); next != crowd_.open.end();) {
    const auto connection = *next++;
    connection->drain(now);
  }
  stopWhenDone();
}

void Server::stopWhenDone() {
  if (isStopping_ && crowd_.open.empty() && operations_.isIdle()) loop_.stop();
}

std::string Server::metricsText() const {
  return metrics_.text({.openConnections = crowd_.open.size(),
                        .unfinishedHandshakes = crowd_.handshaking.size(),
                        .unsentBytes = crowd_.unsentBytes,
                        .isStoreAvailable = store_.isAvailable(),
                        .isStoreDamaged = store_.isDamaged(),
                        .writeAheadLogBytes = store_.writeAheadLogBytes(),
                        .logLinesLeftOut = log_.linesLeftOut(),
                        .certificateDays = certificate_ ? std::optional{daysLeft(*certificate_)} : std::nullopt});
}

}  // namespace mivo::tally

// SPDX-License-Identifier: MIT
#include "tally/server/Connection.h"

#include <algorithm>
#include <utility>

#include "tally/request/ClientAddress.h"
#include "tally/request/RequestReader.h"

namespace mivo::tally {
namespace {

constexpr std::chrono::seconds partingTime{2};
constexpr std::size_t slowestBytesPerSecond = 8 << 10;  // at which a large answer is taken
constexpr Refusal tooSlow{408, "the request did not arrive in time"};

auto now() { return std::chrono::steady_clock::now(); }

DateTexts& dates() {
  thread_local DateTexts texts;
  return texts;
}

}  // namespace

Connection::Connection(tcp::socket socket, std::shared_ptr<ssl::context> ownCertificate, const Workplace& workplace,
                       asio::ip::address peerAddress, Door throughDoor)
    : stream(std::move(socket)),
      certificate(std::move(ownCertificate)),
      work(workplace),
      peer(std::move(peerAddress)),
      door(throughDoor) {}

void Connection::start(Connections::iterator place) {
  listPlace = place;
  if (certificate) return awaitGreeting();
  awaitRequest();
  read();
}

// A connection costs the memory of TLS once its client has said something.
void Connection::awaitGreeting() {
  enter(Phase::silent, now() + work.options.requestTime);
  stream.socket().async_wait(tcp::socket::wait_read, [self = shared_from_this()](error_code error) {
    if (error || self->stream.socket().available(error) == 0) return self->close();
    self->greet();
  });
}

void Connection::greet() {
  if (!work.crowd.addresses.mayGreet(peer, now())) return giveWay(Limit::handshakeRate);
  auto& line = work.crowd.handshaking;
  if (line.size() >= work.options.mostHandshakes) line.front()->giveWay(Limit::handshakes);
  enter(Phase::handshaking, deadline);
  standIn(line);
  stream.secure(*std::exchange(certificate, nullptr));
  stream.handshake(ssl::stream_base::server, [self = shared_from_this()](error_code error) {
    if (error) return self->close();
    self->awaitRequest();
    self->read();
  });
}

void Connection::standIn(Line& line) {
  line.splice(line.end(), ownNode);
  lineStoodIn = &line;
}

void Connection::leaveLine() {
  if (lineStoodIn == nullptr) return;
  ownNode.splice(ownNode.begin(), *lineStoodIn, nodePlace);
  lineStoodIn = nullptr;
  work.crowd.unsentBytes -= std::exchange(held, 0);
}

void Connection::enter(Phase next, Instant until) {
  if (phase == Phase::closed) return;
  leaveLine();
  phase = next;
  deadline = until;
}

void Connection::awaitRequest() {
  enter(Phase::idle, now() + (isDraining ? work.options.drainTime : work.options.idleTime));
}

void Connection::read() {
  if (std::exchange(isReading, true)) return;  // 408 was sent while bytes were waited for
  stream.readSome(inbox.room(), [self = shared_from_this()](error_code error, std::size_t size) {
    self->isReading = false;
    if (error) return self->close();
    self->didRead(size);
  });
}

void Connection::didRead(std::size_t size) {
  if (phase == Phase::parting) return read();
  if (phase == Phase::closed || !keepAlive) return;  // the last answer is on its way
  inbox.took(size);
  received = now();
  if (phase == Phase::idle) enter(Phase::receiving, received + work.options.requestTime);
  answerWhatCame();
}

void Connection::answerWhatCame() {
  while (keepAlive && !outbox.isFull() && takeRequest())
    if (phase == Phase::asking) return;
  outbox.isEmpty() ? read() : write();
}

// Whether a request was there to be taken.
bool Connection::takeRequest() {
  const auto reading = readRequest(inbox.unread());
  inbox.drop(reading.consumed);
  if (reading.state == RequestReading::State::needsMore) return false;
  request = reading.request;
  if (reading.state == RequestReading::State::refused) {
    refuse(reading.refusal);
    return true;
  }
  auto outcome = work.service.handle(request, door, client(), received);
  if (auto* operation = std::get_if<Operation>(&outcome)) {
    ask(std::move(*operation));
  } else {
    finish(std::move(std::get<Answer>(outcome)));
  }
  return true;
}

void Connection::ask(Operation operation) {
  enter(Phase::asking, Instant::max());  // the store has deadlines of its own
  const int delta = operation.delta;
  work.operations.add(std::move(operation), [self = shared_from_this(), delta](const Result& result) {
    if (self->phase == Phase::closed) return;
    if (delta != 0 && result.outcome == Outcome::counted) self->work.metrics.voted(delta);
    self->enter(Phase::receiving, self->received + self->work.options.requestTime);
    self->finish(self->work.service.answerTo(result));
    self->answerWhatCame();
  });
}

// After a request that was not understood nobody knows where the next one begins.
void Connection::refuse(const Refusal& refusal) {
  request.keepAlive = false;
  finish(refusalAnswer(refusal));
}

void Connection::finish(Answer answer) {
  work.service.allowOrigin(request, answer);
  keepAlive = request.keepAlive && !isDraining;
  outbox.append(answer, {.date = dates().http(std::chrono::system_clock::now()),
                         .withBody = request.method != Method::head,
                         .keepAlive = keepAlive,
                         .isHttp11 = request.isHttp11});
  log(answer);
  work.crowd.open.splice(work.crowd.open.end(), work.crowd.open, listPlace);
}

void Connection::log(const Answer& answer) {
  const auto duration = std::chrono::duration_cast<std::chrono::microseconds>(now() - received);
  const auto address = work.options.logAddresses ? client().to_string() : std::string{};
  work.metrics.answered(answer.status, duration);
  work.log.request({request.methodName, request.target, answer.status, duration, address});
}

void Connection::write() {
  error_code error;
  outbox.sent(stream.writeNow(outbox.unsent(), error));
  if (error) return close();
  if (outbox.isEmpty()) return didWrite();
  const std::chrono::seconds forItsSize{asio::buffer_size(outbox.unsent()) / slowestBytesPerSecond};
  enter(Phase::sending, now() + work.options.requestTime + forItsSize);
  holdUnsent();
  if (phase == Phase::closed) return;
  stream.write(outbox.unsent(), [self = shared_from_this()](error_code failure, std::size_t) {
    if (failure) return self->close();
    self->didWrite();
  });
}

// Where all clients together leave too much to be sent, whoever has been slow longest gives way.
void Connection::holdUnsent() {
  auto& crowd = work.crowd;
  held = outbox.ownBytes();
  crowd.unsentBytes += held;
  standIn(crowd.sending);
  while (crowd.unsentBytes > work.options.mostUnsentBytes) crowd.sending.front()->giveWay(Limit::unsent);
}

void Connection::didWrite() {
  outbox.clear();
  if (!keepAlive) return part();
  if (inbox.isEmpty()) {
    awaitRequest();
    return read();
  }
  enter(Phase::receiving, now() + work.options.requestTime);
  answerWhatCame();
}

// Closing while bytes come in would reset the connection, and the client might lose the last answer. What was refused
// is still in the inbox.
void Connection::part() {
  if (inbox.isEmpty() && !stream.isSecure()) return close();
  enter(Phase::parting, now() + partingTime);
  if (!isReading) inbox.clear();
  stream.finishSending([self = shared_from_this()] { self->stream.isSecure() ? self->close() : self->read(); });
}

void Connection::checkDeadline(Instant now) {
  if (now < deadline || phase == Phase::closed) return;
  if (phase != Phase::receiving) return close();
  request = {};
  received = now;
  refuse(tooSlow);
  write();
}

void Connection::drain(Instant now) {
  isDraining = true;
  if (phase == Phase::idle || phase == Phase::silent) deadline = std::min(deadline, now + work.options.drainTime);
}

void Connection::giveWay(Limit limit) {
  work.metrics.reached(limit);
  close();
}

void Connection::close() {
  if (phase == Phase::closed) return;
  phase == Phase::sending ? stream.abandon() : stream.close();
  enter(Phase::closed, Instant::max());
  if (door == Door::everyones) work.crowd.addresses.leave(peer);
  const auto self = shared_from_this();
  work.crowd.open.erase(listPlace);
  work.didClose();
}

asio::ip::address Connection::client() const {
  return forwardedAddress(request.forwardedFor, peer, work.options.trustedProxies);
}

}  // namespace mivo::tally

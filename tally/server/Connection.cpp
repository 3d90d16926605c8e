// SPDX-License-Identifier: MIT
#include "tally/server/Connection.h"

#include <algorithm>
#include <utility>

#include "tally/request/ClientAddress.h"
#include "tally/request/RequestReader.h"

namespace mivo::tally {
namespace {

constexpr std::chrono::seconds partingTime{2};
constexpr Refusal tooSlow{408, "the request did not arrive in time"};

auto now() { return std::chrono::steady_clock::now(); }

DateTexts& dates() {
  thread_local DateTexts texts;
  return texts;
}

}  // namespace

Connection::Connection(tcp::socket socket, std::shared_ptr<ssl::context> certificate, const Workplace& workplace,
                       asio::ip::address peer, Door door)
    : stream_(std::move(socket)),
      certificate_(std::move(certificate)),
      work_(workplace),
      peer_(std::move(peer)),
      door_(door) {}

void Connection::start(Connections::iterator place) {
  place_ = place;
  if (certificate_) return awaitGreeting();
  awaitRequest();
  read();
}

// A connection costs the memory of TLS once its client has said something.
void Connection::awaitGreeting() {
  enter(Phase::silent, now() + work_.options.requestTime);
  stream_.socket().async_wait(tcp::socket::wait_read, [self = shared_from_this()](error_code error) {
    if (error || self->stream_.socket().available(error) == 0) return self->close();
    self->greet();
  });
}

void Connection::greet() {
  if (!work_.crowd.addresses.mayGreet(peer_, now())) return giveWay(Limit::handshakeRate);
  auto& line = work_.crowd.handshaking;
  if (line.size() >= work_.options.mostHandshakes) line.front()->giveWay(Limit::handshakes);
  enter(Phase::handshaking, deadline_);
  standIn(line);
  stream_.secure(*std::exchange(certificate_, nullptr));
  stream_.handshake(ssl::stream_base::server, [self = shared_from_this()](error_code error) {
    if (error) return self->close();
    self->awaitRequest();
    self->read();
  });
}

void Connection::standIn(Line& line) {
  line.splice(line.end(), self_);
  line_ = &line;
}

void Connection::leaveLine() {
  if (line_ == nullptr) return;
  self_.splice(self_.begin(), *line_, node_);
  line_ = nullptr;
  work_.crowd.unsentBytes -= std::exchange(held_, 0);
}

void Connection::enter(Phase phase, Instant deadline) {
  if (phase_ == Phase::closed) return;
  leaveLine();
  phase_ = phase;
  deadline_ = deadline;
}

void Connection::awaitRequest() {
  enter(Phase::idle, now() + (isDraining_ ? work_.options.drainTime : work_.options.idleTime));
}

void Connection::read() {
  if (std::exchange(isReading_, true)) return;  // 408 was sent while bytes were waited for
  stream_.readSome(inbox_.room(), [self = shared_from_this()](error_code error, std::size_t size) {
    self->isReading_ = false;
    if (error) return self->close();
    self->didRead(size);
  });
}

void Connection::didRead(std::size_t size) {
  if (phase_ == Phase::parting) return read();
  if (phase_ == Phase::closed || !keepAlive_) return;  // the last answer is on its way
  inbox_.took(size);
  received_ = now();
  if (phase_ == Phase::idle) enter(Phase::receiving, received_ + work_.options.requestTime);
  answerWhatCame();
}

void Connection::answerWhatCame() {
  while (keepAlive_ && !outbox_.isFull() && takeRequest())
    if (phase_ == Phase::asking) return;
  outbox_.isEmpty() ? read() : write();
}

// Whether a request was there to be taken.
bool Connection::takeRequest() {
  const auto reading = readRequest(inbox_.unread());
  inbox_.drop(reading.consumed);
  if (reading.state == RequestReading::State::needsMore) return false;
  request_ = reading.request;
  if (reading.state == RequestReading::State::refused) {
    refuse(reading.refusal);
    return true;
  }
  auto outcome = work_.service.handle(request_, door_, client(), received_);
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
  work_.operations.add(std::move(operation), [self = shared_from_this(), delta](const Result& result) {
    if (self->phase_ == Phase::closed) return;
    if (delta != 0 && result.outcome == Outcome::counted) self->work_.metrics.voted(delta);
    self->enter(Phase::receiving, self->received_ + self->work_.options.requestTime);
    self->finish(self->work_.service.answerTo(result));
    self->answerWhatCame();
  });
}

// After a request that was not understood nobody knows where the next one begins.
void Connection::refuse(const Refusal& refusal) {
  request_.keepAlive = false;
  wasRefused_ = true;
  finish(refusalAnswer(refusal));
}

void Connection::finish(Answer answer) {
  work_.service.allowOrigin(request_, answer);
  keepAlive_ = request_.keepAlive && !isDraining_;
  outbox_.append(answer, {.date = dates().http(std::chrono::system_clock::now()),
                          .withBody = request_.method != Method::head,
                          .keepAlive = keepAlive_,
                          .isHttp11 = request_.isHttp11});
  log(answer);
  work_.crowd.open.splice(work_.crowd.open.end(), work_.crowd.open, place_);
}

void Connection::log(const Answer& answer) {
  const auto duration = std::chrono::duration_cast<std::chrono::microseconds>(now() - received_);
  const auto address = work_.options.logAddresses ? client().to_string() : std::string{};
  work_.metrics.answered(answer.status, duration);
  work_.log.request({request_.methodName, request_.target, answer.status, duration, address});
}

void Connection::write() {
  error_code error;
  outbox_.sent(stream_.writeNow(outbox_.unsent(), error));
  if (error) return close();
  if (outbox_.isEmpty()) return didWrite();
  enter(Phase::sending, now() + work_.options.requestTime);
  holdUnsent();
  if (phase_ == Phase::closed) return;
  stream_.write(outbox_.unsent(), [self = shared_from_this()](error_code failure, std::size_t) {
    if (failure) return self->close();
    self->didWrite();
  });
}

// Where all clients together leave too much to be sent, whoever has been slow longest gives way.
void Connection::holdUnsent() {
  auto& crowd = work_.crowd;
  held_ = outbox_.ownBytes();
  crowd.unsentBytes += held_;
  standIn(crowd.sending);
  while (crowd.unsentBytes > work_.options.mostUnsentBytes) crowd.sending.front()->giveWay(Limit::unsent);
}

void Connection::didWrite() {
  outbox_.clear();
  if (!keepAlive_) return part();
  if (inbox_.isEmpty()) {
    awaitRequest();
    return read();
  }
  enter(Phase::receiving, now() + work_.options.requestTime);
  answerWhatCame();
}

// Closing while bytes come in would reset the connection, and the client might lose the last answer.
void Connection::part() {
  const bool mayHaveMore = wasRefused_ || !inbox_.isEmpty();
  if (!mayHaveMore && !stream_.isSecure()) return close();
  enter(Phase::parting, now() + partingTime);
  if (!isReading_) inbox_.clear();
  stream_.finishSending([self = shared_from_this()] { self->stream_.isSecure() ? self->close() : self->read(); });
}

void Connection::checkDeadline(Instant now) {
  if (now < deadline_ || phase_ == Phase::closed) return;
  if (phase_ != Phase::receiving) return close();
  request_ = {};
  received_ = now;
  refuse(tooSlow);
  write();
}

void Connection::drain(Instant now) {
  isDraining_ = true;
  if (phase_ == Phase::idle || phase_ == Phase::silent) deadline_ = std::min(deadline_, now + work_.options.drainTime);
}

void Connection::giveWay(Limit limit) {
  work_.metrics.reached(limit);
  close();
}

void Connection::close() {
  if (phase_ == Phase::closed) return;
  phase_ == Phase::sending ? stream_.abandon() : stream_.close();
  enter(Phase::closed, Instant::max());
  if (door_ == Door::everyones) work_.crowd.addresses.leave(peer_);
  const auto self = shared_from_this();
  work_.crowd.open.erase(place_);
  work_.didClose();
}

asio::ip::address Connection::client() const {
  return forwardedAddress(request_.forwardedFor, peer_, work_.options.trustedProxies);
}

}  // namespace mivo::tally

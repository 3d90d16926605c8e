// SPDX-License-Identifier: MIT
#include "tally/server/Connection.h"

#include <algorithm>
#include <utility>

#include "tally/request/ClientAddress.h"
#include "tally/request/RequestReader.h"

namespace mivo::tally {
namespace {

constexpr std::size_t usualOutbox = 4 << 10;
constexpr std::size_t mostUnsent = 64 << 10;
constexpr std::chrono::seconds partingTime{2};
constexpr Refusal tooSlow{408, "the request did not arrive in time"};

auto now() { return std::chrono::steady_clock::now(); }

DateTexts& dates() {
  thread_local DateTexts texts;
  return texts;
}

}  // namespace

Connection::Connection(Stream stream, const Workplace& workplace, asio::ip::address peer)
    : stream_(std::move(stream)), work_(workplace), peer_(std::move(peer)) {}

void Connection::start(Connections::iterator place) {
  place_ = place;
  if (!stream_.isSecure()) {
    awaitRequest();
    return read();
  }
  enter(Phase::handshaking, now() + work_.options.requestTime);
  stream_.handshake(ssl::stream_base::server, [self = shared_from_this()](error_code error) {
    if (error) return self->close();
    self->awaitRequest();
    self->read();
  });
}

void Connection::enter(Phase phase, Instant deadline) {
  if (phase_ == Phase::closed) return;
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
  while (keepAlive_ && outbox_.size() < mostUnsent && takeRequest())
    if (phase_ == Phase::asking) return;
  outbox_.empty() ? read() : write();
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
  auto outcome = work_.service.handle(request_, client(), received_);
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
  appendAnswer(outbox_, answer,
               {.date = dates().http(std::chrono::system_clock::now()),
                .withBody = request_.method != Method::head,
                .keepAlive = keepAlive_,
                .isHttp11 = request_.isHttp11});
  log(answer);
  work_.connections.splice(work_.connections.end(), work_.connections, place_);
}

void Connection::log(const Answer& answer) {
  const auto duration = std::chrono::duration_cast<std::chrono::microseconds>(now() - received_);
  const auto address = work_.options.logAddresses ? client().to_string() : std::string{};
  work_.metrics.answered(answer.status, duration);
  work_.log.request({request_.methodName, request_.target, answer.status, duration, address});
}

void Connection::write() {
  error_code error;
  const auto taken = stream_.writeNow(asio::buffer(outbox_), error);
  if (error) return close();
  if (taken == outbox_.size()) return didWrite();
  outbox_.erase(0, taken);
  enter(Phase::sending, now() + work_.options.requestTime);
  stream_.write(asio::buffer(outbox_), [self = shared_from_this()](error_code failure, std::size_t) {
    if (failure) return self->close();
    self->didWrite();
  });
}

void Connection::didWrite() {
  outbox_.clear();
  if (outbox_.capacity() > usualOutbox) outbox_.shrink_to_fit();
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
  if (phase_ == Phase::idle) deadline_ = std::min(deadline_, now + work_.options.drainTime);
}

void Connection::close() {
  if (phase_ == Phase::closed) return;
  phase_ = Phase::closed;
  stream_.close();
  const auto self = shared_from_this();
  work_.connections.erase(place_);
  work_.didClose();
}

asio::ip::address Connection::client() const {
  return forwardedAddress(request_.forwardedFor, peer_, work_.options.trustedProxies);
}

}  // namespace mivo::tally

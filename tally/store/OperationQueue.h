// SPDX-License-Identifier: MIT
#pragma once
#include "tally/net/Asio.h"
#include "tally/store/CounterStore.h"

namespace mivo::tally {

/// Gathers what connections ask of the store while its last batch is under way, and sends that as the next one: however
/// many vote at once, one flush of the disk or one round trip serves them all. Where the store reads apart, reads do
/// not wait for votes.
class OperationQueue {
 public:
  /// Told once a batch: how many operations it held.
  using BatchSent = std::function<void(std::size_t)>;

  OperationQueue(asio::io_context& eventLoop, CounterStore& counters, BatchSent told)
      : loop(eventLoop), store(counters), batchSent(std::move(told)) {}

  void add(Operation operation, std::function<void(Result)> done);
  bool isIdle() const { return votes.isIdle() && reads.isIdle(); }

 private:
  using Callbacks = std::vector<std::function<void(Result)>>;

  struct Lane {
    bool isIdle() const { return !isUnderWay && operations.empty(); }

    Operations operations;
    Callbacks callbacks;
    Callbacks underWay;
    bool isUnderWay = false;
  };

  void sendSoon(Lane& lane);
  void send(Lane& lane);
  void didFinish(Lane& lane, const Results& results);

  asio::io_context& loop;
  CounterStore& store;
  BatchSent batchSent;
  Lane votes;
  Lane reads;
};

}  // namespace mivo::tally

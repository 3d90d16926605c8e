// SPDX-License-Identifier: MIT
#include "tally/store/OperationQueue.h"

namespace mivo::tally {

void OperationQueue::add(Operation operation, std::function<void(Result)> done) {
  operations_.push_back(std::move(operation));
  callbacks_.push_back(std::move(done));
  if (!isUnderWay_) sendSoon();
}

// Posted, so that the requests that became readable in the same wake-up come along.
void OperationQueue::sendSoon() {
  isUnderWay_ = true;
  asio::post(loop_, [this] { send(); });
}

void OperationQueue::send() {
  batchSent_(operations_.size());
  underWay_ = std::exchange(callbacks_, {});
  store_.submit(std::exchange(operations_, {}), [this](const Results& results) { didFinish(results); });
}

void OperationQueue::didFinish(const Results& results) {
  isUnderWay_ = false;
  const auto answered = std::exchange(underWay_, {});
  // The next batch is on its way while these are answered.
  if (!operations_.empty()) {
    isUnderWay_ = true;
    send();
  }
  for (std::size_t i = 0; i < answered.size(); ++i) answered[i](results[i]);
}

}  // namespace mivo::tally

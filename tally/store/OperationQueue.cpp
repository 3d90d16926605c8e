// SPDX-License-Identifier: MIT
#include "tally/store/OperationQueue.h"

namespace mivo::tally {

void OperationQueue::add(Operation operation, std::function<void(Result)> done) {
  auto& lane = operation.delta == 0 && store.readsApart() ? reads : votes;
  lane.operations.push_back(std::move(operation));
  lane.callbacks.push_back(std::move(done));
  if (!lane.isUnderWay) sendSoon(lane);
}

// Posted, so that the requests that became readable in the same wake-up come along.
void OperationQueue::sendSoon(Lane& lane) {
  lane.isUnderWay = true;
  asio::post(loop, [this, &lane] { send(lane); });
}

void OperationQueue::send(Lane& lane) {
  batchSent(lane.operations.size());
  lane.underWay = std::exchange(lane.callbacks, {});
  store.submit(std::exchange(lane.operations, {}), [this, &lane](const Results& results) { didFinish(lane, results); });
}

void OperationQueue::didFinish(Lane& lane, const Results& results) {
  lane.isUnderWay = false;
  const auto answered = std::exchange(lane.underWay, {});
  // The next batch is on its way while these are answered.
  if (!lane.operations.empty()) {
    lane.isUnderWay = true;
    send(lane);
  }
  for (std::size_t i = 0; i < answered.size(); ++i) answered[i](results[i]);
}

}  // namespace mivo::tally

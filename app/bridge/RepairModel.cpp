// SPDX-License-Identifier: MIT
#include "RepairModel.h"

#include <utility>

namespace mivo::app {

RepairModel::RepairModel(std::function<PageClients()> present, std::function<void(Action)> sends)
    : clients{std::move(present)}, send{std::move(sends)} {}

void RepairModel::follow(const std::optional<host::HistoryChange>& proposal) {
  if (proposal == change) return;
  change = proposal;
  if (change) show(composeRepairSheet(*change, clients()));
}

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#include "RepairModel.h"

#include <utility>

#include "app/bridge/Records.h"

namespace mivo::app {

RepairModel::RepairModel(std::function<PageClients()> present, std::function<void(Action)> sends, QObject* parent)
    : QObject{parent}, clients{std::move(present)}, send{std::move(sends)} {}

void RepairModel::follow(const std::optional<host::HistoryChange>& proposal) {
  if (proposal == change) return;
  change = proposal;
  if (change) {
    const auto sheet = composeRepairSheet(*change, clients());
    carry(sheet, *this);
    repairs.show(sheet.rows);
  }
  Q_EMIT isProposedChanged();
}

void RepairModel::cancel() {
  if (change) send(Action::didCancelOverlapRepair{});
}

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#include "DateTimeChoiceModel.h"

#include <utility>

#include "app/bridge/Records.h"
#include "app/bridge/Text.h"

namespace mivo::app {

DateTimeChoiceModel::DateTimeChoiceModel(std::function<PageClients()> present) : clients{std::move(present)} {
  become(host::dateTimeEntry(clients().now, clients()));
}

void DateTimeChoiceModel::begin(double date) { become(host::dateTimeEntry(dateSince1970(date), clients())); }

QString DateTimeChoiceModel::dayText(int place, double) const { return qString(dayTextOf(entry, place, clients())); }

QString DateTimeChoiceModel::clockText(int place) const { return qString(twoDigits(place, clients().numbers)); }

void DateTimeChoiceModel::become(const host::DateTimeEntry& next) {
  entry = next;
  carry(composeDateTimeChoice(entry, clients()), *this);
}

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#include "DateTimeChoiceModel.h"

#include <utility>

namespace mivo::app {

DateTimeChoiceModel::DateTimeChoiceModel(std::function<PageClients()> present) : clients{std::move(present)} {
  become(host::dateTimeEntry(clients().now, clients()));
}

void DateTimeChoiceModel::begin(double date) { become(host::dateTimeEntry(dateSince1970(date), clients())); }

QString DateTimeChoiceModel::dayText(int place, double) const { return qString(dayTextOf(entry, place, clients())); }

QString DateTimeChoiceModel::hourText(int place) const { return qString(hourTextOf(entry, place, clients())); }

QString DateTimeChoiceModel::minuteText(int place) const { return qString(twoDigits(place, clients().numbers)); }

bool DateTimeChoiceModel::type(const QString& written) {
  const auto next = withTyped(entry, written.trimmed().toStdString(), clients());
  if (next) become(*next);
  return next.has_value();
}

void DateTimeChoiceModel::become(const host::DateTimeEntry& next) {
  entry = next;
  show(composeDateTimeChoice(entry, clients()));
}

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#include "DonationsModel.h"

namespace mivo::app {
namespace {

DonationKind kindOf(const DonationGroup& group) {
  DonationKind kind{qString(group.label), {}};
  for (const DonationChoice& choice : group.choices)
    kind.choices.append({qString(choice.id), qString(choice.price), qString(choice.spoken), choice.isChosen});
  return kind;
}

}  // namespace

DonationsModel::DonationsModel(std::function<void(Action)> sends, QObject* parent)
    : QObject{parent}, send{std::move(sends)} {}

void DonationsModel::show(DonationsPage composed) {
  if (page == composed) return;
  page = std::move(composed);
  kinds.clear();
  for (const DonationGroup& group : page.groups) kinds.append(kindOf(group));
  Q_EMIT changed();
}

}  // namespace mivo::app

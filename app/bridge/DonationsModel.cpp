// SPDX-License-Identifier: MIT
#include "DonationsModel.h"

#include "app/bridge/Text.h"

namespace mivo::app {
namespace {

QList<DonationChoice> choices(const List<DonationProduct>& products) {
  QList<DonationChoice> all;
  for (const auto& product : products)
    all.append({qString(product.id), qString(product.title), qString(product.price)});
  return all;
}

}  // namespace

DonationsModel::DonationsModel(std::function<void(Action)> sends, QObject* parent)
    : QObject{parent}, send{std::move(sends)} {}

void DonationsModel::follow(const DonationsFeature::State& state) {
  using Loading = DonationsFeature::LoadingState;
  once = choices(state.oneTimeProducts);
  monthly = choices(state.recurringProducts);
  loading = state.loadingState == Loading::loading;
  failed = state.loadingState == Loading::failed ? qString(state.failure) : QString{};
  const auto isListed = [this](const DonationChoice& choice) { return choice.id == chosenID; };
  if (std::ranges::none_of(once, isListed) && std::ranges::none_of(monthly, isListed))
    chosenID = once.size() > 1 ? once[1].id : once.value(0, monthly.value(0)).id;
  Q_EMIT changed();
}

QString DonationsModel::buttonText() const {
  for (const auto* list : {&once, &monthly})
    for (const DonationChoice& choice : *list)
      if (choice.id == chosenID)
        return qString(filledIn(dependency(&Dependencies::texts)->text("Donate {1}"), {choice.price.toStdString()}));
  return qString(dependency(&Dependencies::texts)->text("Donate"));
}

void DonationsModel::choose(const QString& id) {
  chosenID = id;
  Q_EMIT changed();
}

}  // namespace mivo::app

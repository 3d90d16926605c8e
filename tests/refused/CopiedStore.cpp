// SPDX-License-Identifier: MIT
// error: use of deleted function
// error: call to deleted constructor
#include "mivo/statistics/DonationsFeature.h"
#include "mivo/store/Store.h"

void hold(mivo::Store<mivo::DonationsFeature>& store) {
#ifdef FAULT
  auto held = store;
#else
  auto& held = store;
#endif
  held.send(mivo::DonationsFeature::Action::onAppear{});
}

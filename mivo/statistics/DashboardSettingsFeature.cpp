// SPDX-License-Identifier: MIT
#include "mivo/statistics/DashboardSettingsFeature.h"

#include <string_view>
#include <vector>

#include "mivo/platform/Dependencies.h"

namespace mivo {
namespace {

using State = DashboardSettingsFeature::State;

std::vector<bool> flags(const State& state) {
  std::vector<bool> all;
  fields(state, [&all](std::string_view, bool flag) { all.push_back(flag); });
  return all;
}

}  // namespace

bool State::isShowingNothing() const {
  bool isShowingSome = false;
  fields(*this, [&isShowingSome](std::string_view, bool flag) { isShowingSome |= flag; });
  return !isShowingSome;
}

void State::updateFromDefaults() {
  const auto& defaults = *dependency(&Dependencies::userDefaults);
  const auto initial = flags(State{});
  auto fallback = initial.begin();
  fields(*this, [&](std::string_view name, Observed<bool>& flag) { flag = defaults.boolean(name, *fallback++); });
}

void State::writeToDefaults() const {
  const auto& defaults = *dependency(&Dependencies::userDefaults);
  fields(*this, [&defaults](std::string_view name, bool flag) {
    if (defaults.value(name) != UserDefaults::Value{flag}) defaults.setValue(name, flag);
  });
}

}  // namespace mivo

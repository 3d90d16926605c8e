// SPDX-License-Identifier: MIT
#include "host/tips/Tips.h"

#include <algorithm>
#include <utility>

namespace mivo::host {
namespace {

std::string launchesKey(std::string_view id) { return "tips." + std::string{id} + ".launches"; }
std::string dismissedKey(std::string_view id) { return "tips." + std::string{id} + ".isDismissed"; }

}  // namespace

Tips::Tips(Client<UserDefaults> ownDefaults, std::span<const TipRule> all)
    : defaults{std::move(ownDefaults)}, rules{all} {}

void Tips::setFacts(const TipFacts& current) const {
  const std::scoped_lock lock{mutex};
  facts = current;
}

void Tips::didShow(std::string_view id) const {
  const std::scoped_lock lock{mutex};
  if (!ruleOf(id) || !shownInThisRun.emplace(id).second) return;
  defaults->setValue(launchesKey(id), defaults->integer(launchesKey(id), 0) + 1);
}

void Tips::dismiss(std::string_view id) const {
  if (ruleOf(id)) defaults->setValue(dismissedKey(id), true);
}

std::optional<Tip> Tips::tip(std::string_view id) const {
  const TipRule* rule = ruleOf(id);
  if (!rule || defaults->boolean(dismissedKey(id), false)) return std::nullopt;
  return Tip{std::string{rule->id}, std::string{rule->title}, std::string{rule->message}};
}

bool Tips::canDisplay(std::string_view id) const {
  const std::scoped_lock lock{mutex};
  const TipRule* rule = ruleOf(id);
  return rule && canDisplay(*rule);
}

std::optional<std::string> Tips::highestPriorityAvailableTip() const {
  const std::scoped_lock lock{mutex};
  const TipRule* highest = nullptr;
  for (const TipRule& rule : rules)
    if ((!highest || rule.priority > highest->priority) && canDisplay(rule)) highest = &rule;
  if (!highest) return std::nullopt;
  return std::string{highest->id};
}

const TipRule* Tips::ruleOf(std::string_view id) const {
  const auto rule = std::ranges::find(rules, id, &TipRule::id);
  return rule == rules.end() ? nullptr : &*rule;
}

bool Tips::canDisplay(const TipRule& rule) const {
  if (!rule.isEligible(facts) || defaults->boolean(dismissedKey(rule.id), false)) return false;
  return shownInThisRun.contains(rule.id) || defaults->integer(launchesKey(rule.id), 0) < rule.launchCount;
}

}  // namespace mivo::host

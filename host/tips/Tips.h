// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>
#include <set>
#include <span>
#include <string>

#include "host/tips/TipRules.h"
#include "mivo/platform/Client.h"
#include "mivo/platform/TipCatalogue.h"
#include "mivo/platform/UserDefaults.h"

namespace mivo::host {

/// The app's tips, and what the user made of them, kept in user defaults: in how many runs of the app a tip was shown,
/// and whether it was dismissed, which is for good. One object is one run of the app: a tip that it began to show stays
/// for the run. Thread: any.
class Tips final : public TipCatalogue {
 public:
  explicit Tips(Client<UserDefaults> defaults, std::span<const TipRule> rules = shippedTips());

  /// To be called when one of them changed.
  void setFacts(const TipFacts& facts) const;
  /// To be called when a tip is on screen, as often as one likes.
  void didShow(std::string_view id) const;
  void dismiss(std::string_view id) const;

  /// Nothing for a dismissed tip too, so that its card leaves at once.
  std::optional<Tip> tip(std::string_view id) const override;
  bool canDisplay(std::string_view id) const override;
  std::optional<std::string> highestPriorityAvailableTip() const override;

 private:
  const TipRule* ruleOf(std::string_view id) const;
  bool canDisplay(const TipRule& rule) const;

  Client<UserDefaults> defaults;
  std::span<const TipRule> rules;
  mutable std::mutex mutex;
  mutable TipFacts facts;
  mutable std::set<std::string, std::less<>> shownInThisRun;
};

}  // namespace mivo::host

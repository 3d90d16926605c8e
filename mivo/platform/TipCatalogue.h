// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mivo {

/// A short in-app hint. The texts are English and keys of the message catalogues.
struct Tip {
  std::string id, title, message;
  bool operator==(const Tip&) const = default;
};

/// The tips that a user may be shown. Thread: any.
class TipCatalogue {
 public:
  virtual ~TipCatalogue() = default;
  virtual std::optional<Tip> tip(std::string_view id) const = 0;
  /// False once it was dismissed or shown often enough, and while its rules do not hold.
  virtual bool canDisplay(std::string_view id) const = 0;
  /// May ask slow places; called from tasks only.
  virtual std::optional<std::string> highestPriorityAvailableTip() const = 0;
};

}  // namespace mivo

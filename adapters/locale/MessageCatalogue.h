// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <locale>

#include "adapters/locale/CatalogueFolder.h"
#include "mivo/platform/TextLookup.h"

namespace mivo::adapters {

/// The texts of one language, read from its gettext catalogue when it is made. The process's own locale is neither
/// asked nor set, and the system needs none installed.
///
///     const MessageCatalogue german{"de-AT"};
///     german.text("week");  // "Woche"
///
/// A region without a catalogue of its own uses its language's; a language without one, English among them, is answered
/// with the keys. A catalogue that cannot be read is reported as an issue and is as good as none.
///
/// Thread: any. Cost: a look-up is one hash and one copy; making it reads one file.
class MessageCatalogue final : public TextLookup {
 public:
  /// `localeTag` is a language with or without a region: "de", "de-AT", "pt_BR.UTF-8"; other parts are ignored.
  explicit MessageCatalogue(std::string_view localeTag, const std::filesystem::path& folder = catalogueFolder());

  std::string text(std::string_view key, std::string_view context = {}) const override;
  std::string plural(std::string_view one, std::string_view many, std::int64_t count) const override;

 private:
  std::locale language;
};

}  // namespace mivo::adapters

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "mivo/model/UUID.h"

namespace mivo::cli {

/// Identifiers as people type them: the first few digits of theirs, in small letters.
///
///     const ShortIDs ids{all};
///     ids.text(all[0]);          // "3f9a"
///     ids.beginningWith("3F9");  // {0}
class ShortIDs {
 public:
  /// All shall be told apart by their first digits, of which there are 4 at least.
  explicit ShortIDs(const std::vector<UUID>& ids);

  std::string text(UUID id) const;

  /// The places of those that begin so; capitals and hyphens make no difference.
  std::vector<std::size_t> beginningWith(std::string_view digits) const;

 private:
  std::vector<std::string> all;  // in the order in which they came
  std::size_t length = 4;
};

/// Whether a text can be the beginning of an identifier.
bool canBeginID(std::string_view text);

}  // namespace mivo::cli

// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

#include "host/import/ImportSettings.h"
#include "host/import/ImportedFile.h"
#include "mivo/platform/UUIDGenerator.h"

namespace mivo::host {

/// Where the root element of a text in XML begins, behind its declaration and its document type, which in health
/// exports is often not valid. Nothing while none has come. A document type that is malformed, or that declares
/// entities, is passed over like any other.
std::optional<std::size_t> rootElement(std::string_view beginning);

/// Whether a root element is a health export's.
bool isHealthExport(std::string_view fromRoot);

/// Reads the body masses of a phone's health export, of any size, in pieces from the root element on. Everything else
/// is passed over by the parser; no entity is expanded, and nothing is kept but the weights.
///
/// Weighings of one minute that differ by at most 10 g are one, which several sources have told. Memory: the parser's
/// buffer of one element, at most `longestElementInBytes`, beside the weights.
class HealthExport {
 public:
  static constexpr std::size_t longestElementInBytes = std::size_t{1} << 20;

  /// `firstLine` is the root's line in the file. `ids` must outlive the reader.
  HealthExport(std::string file, std::int64_t firstLine, ImportSettings settings, const UUIDGenerator& ids);
  ~HealthExport();
  HealthExport(HealthExport&&) noexcept;
  HealthExport& operator=(HealthExport&&) noexcept;

  std::optional<ImportFault> feed(std::string_view piece);
  tl::expected<ImportedFile, ImportFault> finish();

 private:
  struct Parser;
  std::unique_ptr<Parser> parser;
};

}  // namespace mivo::host

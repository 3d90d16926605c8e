// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

class QQuickWindow;

namespace mivo::app {

/// Writes a window that shows all of its column as a picture or, where the name ends in .pdf, onto pages of A4, none of
/// which cuts a card. The file is its owner's only, and written whole or not at all; one that is there is replaced. A
/// sentence where that fails.
std::optional<std::string> print(QQuickWindow& window, const std::string& file);

}  // namespace mivo::app

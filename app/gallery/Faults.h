// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QStringList>

class QQuickWindow;

namespace mivo::app {

/// What is wrong with the texts that a window shows, one sentence each: cut off, a word broken in two, outside its
/// card, its button or the window, over another text, with a glyph that no font has, or too faint to read (below 4.5:1,
/// for large text 3:1).
QStringList faultsOf(QQuickWindow& window);

/// Only what lies over something else in its card: texts, badges and bars.
QStringList overlapsOf(QQuickWindow& window);

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QAbstractNativeEventFilter>
#include <QtCore/QByteArray>

#include <cstdint>

class QWindow;

namespace mivo::app {

/// Ends the program with its window, where another program destroys that instead of asking it to close: Qt does not
/// notice.
class EndsWithWindow : public QAbstractNativeEventFilter {
 public:
  /// The window is on a screen already.
  explicit EndsWithWindow(const QWindow& window);
  ~EndsWithWindow() override;
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  std::uint32_t id;
};

}  // namespace mivo::app

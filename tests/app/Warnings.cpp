// SPDX-License-Identifier: MIT
#include "tests/app/Warnings.h"

#include <QtCore/QString>

#include <gtest/gtest.h>

namespace mivo::app {
namespace {

QtMessageHandler printing = nullptr;

// Notes about the display that tests run on; the app has no part in them.
constexpr const char* ofTheDisplay[] = {
    "This plugin does not support propagateSizeHints()",
    "This plugin does not support raise()",
    "XDG_RUNTIME_DIR not set",
};

// Of Qt's own: a TapHandler whose row leaves the list between press and release looks for the window that it had.
constexpr const char* ofQt = "QObject::disconnect: Unexpected nullptr parameter";

void handle(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  printing(type, context, message);
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  if (message == QLatin1String{ofQt}) return;
  for (const char* note : ofTheDisplay)
    if (message.contains(QLatin1String{note})) return;
  ADD_FAILURE() << (context.file ? context.file : "Qt") << ':' << context.line << ": " << message.toStdString();
}

}  // namespace

void failOnWarnings() { printing = qInstallMessageHandler(handle); }

}  // namespace mivo::app

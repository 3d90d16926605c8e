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

void handle(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  printing(type, context, message);
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  for (const char* note : ofTheDisplay)
    if (message.contains(QLatin1String{note})) return;
  ADD_FAILURE() << (context.file ? context.file : "Qt") << ':' << context.line << ": " << message.toStdString();
}

}  // namespace

void failOnWarnings() { printing = qInstallMessageHandler(handle); }

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>

#include "tests/app/Warnings.h"

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  mivo::app::failOnWarnings();
  const QGuiApplication application{count, arguments};
  return RUN_ALL_TESTS();
}

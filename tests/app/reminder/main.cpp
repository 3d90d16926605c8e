// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>

int main(int count, char** arguments) {
  testing::InitGoogleTest(&count, arguments);
  const QCoreApplication application{count, arguments};
  return RUN_ALL_TESTS();
}

// SPDX-License-Identifier: MIT
#include "app/program/PrintOutside.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>

#include <stdexcept>

namespace mivo::app {
namespace {

// Libraries may have said something before it.
std::string lastSentence(const QByteArray& said) {
  const QByteArray last = said.trimmed().split('\n').back();
  constexpr QByteArrayView name{"mivo-app: "};
  return last.startsWith(name) ? last.sliced(name.size()).toStdString() : last.toStdString();
}

}  // namespace

void printOutside(const std::filesystem::path& file, const std::vector<std::string>& arguments) {
  QStringList all{QStringLiteral("--print"), QString::fromStdString(file.string())};
  for (const std::string& argument : arguments) all.push_back(QString::fromStdString(argument));
  QProcess process;
  process.setStandardOutputFile(QProcess::nullDevice());
  process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/mivo-app"), all, QIODevice::ReadOnly);
  if (!process.waitForFinished(-1)) throw std::runtime_error{process.errorString().toStdString()};
  if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0) return;
  const std::string sentence = lastSentence(process.readAllStandardError());
  throw std::runtime_error{sentence.empty() ? process.errorString().toStdString() : sentence};  // it may have crashed
}

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QUrl>

#include <functional>
#include <utility>

#include "app/records/Records.h"
#include "host/app/AppFeature.h"

namespace mivo::app {

/// The `host::ImportSheet`; once nothing is brought along any more, as it was last.
class ImportModel : public mivo::app::ImportSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  using Action = host::AppFeature::Action;
  ImportModel(std::function<PageClients()> clients, std::function<void(Action)> send);

  void follow(const host::AppFeature::State& state);

  Q_INVOKABLE void choose(const QList<QUrl>& files);
  Q_INVOKABLE void answer(int place);
  Q_INVOKABLE void confirm();

 private:
  void sendImport(host::ImportFeature::Action action);

  std::function<PageClients()> clients;
  std::function<void(Action)> send;
  host::ImportSheet last;
};

/// The `host::SeveralFastsSheet`; once nothing is typed any more, as it was last.
class SeveralFastsModel : public mivo::app::SeveralFastsSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  using Action = host::AppFeature::Action;
  SeveralFastsModel(std::function<PageClients()> present, std::function<void(Action)> sends)
      : clients{std::move(present)}, send{std::move(sends)} {}

  void follow(const host::AppFeature::State& state);

  Q_INVOKABLE void type(const QString& lines) { send(Action::didTypeFasts{lines.toStdString()}); }
  Q_INVOKABLE void add();

 private:
  std::function<PageClients()> clients;
  std::function<void(Action)> send;
};

/// The `host::ExportSheet`.
class ExportModel : public mivo::app::ExportSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  using Action = host::AppFeature::Action;
  ExportModel(std::function<PageClients()> clients, std::function<void(Action)> send);

  /// Composed for a day: its files are named after that.
  void follow(const host::AppFeature::State& state);

  /// The file that is proposed for a row, among the user's documents.
  Q_INVOKABLE QUrl proposal(const QString& fileName) const;
  Q_INVOKABLE void write(int row, const QUrl& file);
  Q_INVOKABLE void switchWeights() { send(Action::didSwitchPrintedWeights{}); }

 private:
  std::function<PageClients()> clients;
  std::function<void(Action)> send;
};

/// The `host::HealthSheet`.
class HealthModel : public mivo::app::HealthSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  using Action = host::AppFeature::Action;
  HealthModel(const TextLookup& lookup, std::function<void(Action)> sends) : texts{lookup}, send{std::move(sends)} {}

  void follow(const host::AppFeature::State& state);

  Q_INVOKABLE void chooseFile() { Q_EMIT fileWanted(); }
  Q_INVOKABLE void link(const QUrl& file);
  Q_INVOKABLE void unlink();

 Q_SIGNALS:
  /// The dialog that chooses it is to open.
  void fileWanted();

 private:
  const TextLookup& texts;
  std::function<void(Action)> send;
};

/// A `host::BackupsPage`, and the sheet of the backup that was chosen, as it was last once none is.
class BackupsModel : public mivo::app::BackupsPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(mivo::app::RestoreSheetRecord* chosen READ chosen CONSTANT)

 public:
  using Action = host::AppFeature::Action;
  BackupsModel(std::function<PageClients()> clients, std::function<void(Action)> send);

  void follow(const host::AppFeature::State& state);
  RestoreSheetRecord* chosen() { return &restoreSheet; }

  Q_INVOKABLE void backUp();
  Q_INVOKABLE void choose(int row);
  Q_INVOKABLE void restore();
  Q_INVOKABLE void chooseFolder(const QUrl& chosenFolder);
  Q_INVOKABLE void useUsualFolder();

 private:
  void sendBackups(host::BackupsFeature::Action action);

  std::function<PageClients()> clients;
  std::function<void(Action)> send;
  RestoreSheetRecord restoreSheet;
};

}  // namespace mivo::app

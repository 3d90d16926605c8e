// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QList>
#include <QtCore/QUrl>

#include <utility>

#include "app/bridge/AppLink.h"
#include "app/records/Records.h"

namespace mivo::app {

/// The `host::ImportSheet`; once nothing is brought along any more, as it was last.
class ImportModel : public mivo::app::ImportSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  ImportModel(AppLink to, QObject* parent) : mivo::app::ImportSheetRecord{parent}, app{std::move(to)} {}

  void follow(const host::AppFeature::State& state);

  Q_INVOKABLE void choose(const QList<QUrl>& files);
  Q_INVOKABLE void answer(int place);
  Q_INVOKABLE void confirm();

 private:
  AppLink app;
  host::ImportSheet last;
};

/// The `host::SeveralFastsSheet`; once nothing is typed any more, as it was last.
class SeveralFastsModel : public mivo::app::SeveralFastsSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  SeveralFastsModel(AppLink to, QObject* parent) : mivo::app::SeveralFastsSheetRecord{parent}, app{std::move(to)} {}

  void follow(const host::AppFeature::State& state);

  Q_INVOKABLE void type(const QString& lines) { app.send(AppAction::didTypeFasts{lines.toStdString()}); }
  Q_INVOKABLE void add();

 private:
  AppLink app;
};

/// The `host::ExportSheet`.
class ExportModel : public mivo::app::ExportSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  ExportModel(AppLink to, QObject* parent) : mivo::app::ExportSheetRecord{parent}, app{std::move(to)} {}

  /// Composed for a day: its files are named after that.
  void follow(const host::AppFeature::State& state);

  /// The file that is proposed for a row, among the user's documents.
  Q_INVOKABLE QUrl proposal(const QString& fileName) const;
  Q_INVOKABLE void write(int row, const QUrl& file);
  Q_INVOKABLE void switchWeights() { app.send(AppAction::didSwitchPrintedWeights{}); }

 private:
  AppLink app;
};

/// The `host::HealthSheet`.
class HealthModel : public mivo::app::HealthSheetRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")

 public:
  HealthModel(AppLink to, QObject* parent) : mivo::app::HealthSheetRecord{parent}, app{std::move(to)} {}

  void follow(const host::AppFeature::State& state);

  Q_INVOKABLE void chooseFile() { Q_EMIT fileWanted(); }
  Q_INVOKABLE void link(const QUrl& file);
  Q_INVOKABLE void unlink() { app.send(AppAction::health{host::HealthFeature::Action::didUnlink{}}); }

 Q_SIGNALS:
  /// The dialog that chooses it is to open.
  void fileWanted();

 private:
  AppLink app;
};

/// A `host::BackupsPage`, and the sheet of the backup that was chosen, as it was last once none is.
class BackupsModel : public mivo::app::BackupsPageRecord {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the app has one")
  Q_PROPERTY(mivo::app::RestoreSheetRecord* chosen MEMBER chosen CONSTANT)

 public:
  BackupsModel(AppLink to, QObject* parent) : mivo::app::BackupsPageRecord{parent}, app{std::move(to)} {}

  void follow(const host::AppFeature::State& state);

  Q_INVOKABLE void backUp() { send(Action::didTapBackUp{}); }
  Q_INVOKABLE void choose(int row) { send(Action::didChoose{static_cast<std::size_t>(row)}); }
  Q_INVOKABLE void restore() { send(Action::didTapRestore{}); }
  Q_INVOKABLE void chooseFolder(const QUrl& chosenFolder);
  Q_INVOKABLE void useUsualFolder() { send(Action::didChooseFolder{}); }

 private:
  using Action = host::BackupsFeature::Action;
  void send(Action action) { app.send(AppAction::backups{std::move(action)}); }

  AppLink app;
  RestoreSheetRecord* const chosen = new RestoreSheetRecord{this};
};

}  // namespace mivo::app

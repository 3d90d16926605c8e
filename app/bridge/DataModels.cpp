// SPDX-License-Identifier: MIT
#include "DataModels.h"

#include <QtCore/QStandardPaths>

#include <utility>

namespace mivo::app {
namespace {

// What is no file of this machine is refused by its name, as a file that is not there.
std::string pathOf(const QUrl& file) {
  return (file.isLocalFile() ? file.toLocalFile() : file.toString()).toStdString();
}

AppAction toImport(host::ImportFeature::Action action) {
  return AppAction::importing{PresentationAction<host::ImportFeature::Action>::presented{std::move(action)}};
}

}  // namespace

void ImportModel::follow(const host::AppFeature::State& state) {
  last = nextImportSheet(std::move(last), state, app.clients());
  show(last);
}

void ImportModel::choose(const QList<QUrl>& chosen) {
  std::vector<std::string> paths;
  for (const QUrl& file : chosen) paths.push_back(pathOf(file));
  app.send(AppAction::didChooseFiles{std::move(paths)});
}

void ImportModel::answer(int place) {
  app.send(toImport(host::ImportFeature::Action::didAnswer{static_cast<std::size_t>(place)}));
}

void ImportModel::confirm() { app.send(toImport(host::ImportFeature::Action::didTapImport{})); }

void SeveralFastsModel::follow(const host::AppFeature::State& state) {
  if (openScreen(state) == host::Screen::severalFasts) show(composeSeveralFastsSheet(*state.importing, app.clients()));
}

void SeveralFastsModel::add() { app.send(toImport(host::ImportFeature::Action::didTapImport{})); }

void ExportModel::follow(const host::AppFeature::State& state) {
  if (openScreen(state) == host::Screen::exporting || title.isEmpty())
    show(host::composeExportSheet(state.printsWeights, app.clients()));
}

QUrl ExportModel::proposal(const QString& fileName) const {
  return QUrl::fromLocalFile(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QLatin1Char{'/'} +
                             fileName);
}

void ExportModel::write(int row, const QUrl& file) {
  app.send(AppAction::didExport{host::exportedPartAt(static_cast<std::size_t>(row)), pathOf(file)});
}

void HealthModel::follow(const host::AppFeature::State& state) {
  show(composeHealthSheet(state.health, app.clients().texts));
}

void HealthModel::link(const QUrl& file) {
  app.send(AppAction::health{host::HealthFeature::Action::didLink{pathOf(file)}});
}

void BackupsModel::follow(const host::AppFeature::State& state) {
  show(composeBackupsPage(state.backups, app.clients()));
  if (*state.backups.chosen) chosen->show(composeRestoreSheet(state, app.clients()));
}

void BackupsModel::chooseFolder(const QUrl& chosenFolder) { send(Action::didChooseFolder{pathOf(chosenFolder)}); }

}  // namespace mivo::app

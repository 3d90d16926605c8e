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

}  // namespace

ImportModel::ImportModel(std::function<PageClients()> present, std::function<void(Action)> sends)
    : clients{std::move(present)}, send{std::move(sends)} {}

void ImportModel::follow(const host::AppFeature::State& state) {
  host::ImportSheet now = composeImportSheet(state, clients());
  if (state.importing && !*state.importing->isTyped) {
    last = std::move(now);
  } else {
    last.takesFiles = now.takesFiles;
    last.dropLabel = std::move(now.dropLabel);
  }
  show(last);
}

void ImportModel::choose(const QList<QUrl>& chosen) {
  std::vector<std::string> paths;
  for (const QUrl& file : chosen) paths.push_back(pathOf(file));
  send(Action::didChooseFiles{std::move(paths)});
}

void ImportModel::answer(int place) {
  sendImport(host::ImportFeature::Action::didAnswer{static_cast<std::size_t>(place)});
}

void ImportModel::confirm() { sendImport(host::ImportFeature::Action::didTapImport{}); }

void ImportModel::sendImport(host::ImportFeature::Action action) {
  using Shown = PresentationAction<host::ImportFeature::Action>;
  send(Action::importing{Shown::presented{std::move(action)}});
}

void SeveralFastsModel::follow(const host::AppFeature::State& state) {
  if (openScreen(state) == host::Screen::severalFasts) show(composeSeveralFastsSheet(*state.importing, clients()));
}

void SeveralFastsModel::add() {
  using Shown = PresentationAction<host::ImportFeature::Action>;
  send(Action::importing{Shown::presented{host::ImportFeature::Action::didTapImport{}}});
}

ExportModel::ExportModel(std::function<PageClients()> present, std::function<void(Action)> sends)
    : clients{std::move(present)}, send{std::move(sends)} {}

void ExportModel::follow(const host::AppFeature::State& state) {
  if (openScreen(state) == host::Screen::exporting || title.isEmpty())
    show(host::composeExportSheet(state.printsWeights, clients()));
}

QUrl ExportModel::proposal(const QString& fileName) const {
  return QUrl::fromLocalFile(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QLatin1Char{'/'} +
                             fileName);
}

void ExportModel::write(int row, const QUrl& file) {
  send(Action::didExport{host::exportedPartAt(static_cast<std::size_t>(row)), pathOf(file)});
}

void HealthModel::follow(const host::AppFeature::State& state) { show(composeHealthSheet(state.health, texts)); }

void HealthModel::link(const QUrl& file) { send(Action::health{host::HealthFeature::Action::didLink{pathOf(file)}}); }

void HealthModel::unlink() { send(Action::health{host::HealthFeature::Action::didUnlink{}}); }

BackupsModel::BackupsModel(std::function<PageClients()> present, std::function<void(Action)> sends)
    : clients{std::move(present)}, send{std::move(sends)} {}

void BackupsModel::follow(const host::AppFeature::State& state) {
  show(composeBackupsPage(state.backups, clients()));
  if (*state.backups.chosen) restoreSheet.show(composeRestoreSheet(state, clients()));
}

void BackupsModel::backUp() { sendBackups(host::BackupsFeature::Action::didTapBackUp{}); }

void BackupsModel::choose(int row) {
  sendBackups(host::BackupsFeature::Action::didChoose{static_cast<std::size_t>(row)});
}

void BackupsModel::restore() { sendBackups(host::BackupsFeature::Action::didTapRestore{}); }

void BackupsModel::chooseFolder(const QUrl& chosenFolder) {
  sendBackups(host::BackupsFeature::Action::didChooseFolder{pathOf(chosenFolder)});
}

void BackupsModel::useUsualFolder() { sendBackups(host::BackupsFeature::Action::didChooseFolder{}); }

void BackupsModel::sendBackups(host::BackupsFeature::Action action) { send(Action::backups{std::move(action)}); }

}  // namespace mivo::app

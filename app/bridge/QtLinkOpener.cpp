// SPDX-License-Identifier: MIT
#include "QtLinkOpener.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>

namespace mivo::app {

void QtLinkOpener::open(std::string_view url) const {
  const QUrl link{QString::fromUtf8(url.data(), static_cast<qsizetype>(url.size()))};
  QMetaObject::invokeMethod(
      QCoreApplication::instance(), [link] { QDesktopServices::openUrl(link); }, Qt::QueuedConnection);
}

}  // namespace mivo::app

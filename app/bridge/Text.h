// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QString>

#include <string>

namespace mivo::app {

inline QString qString(const std::string& text) { return QString::fromStdString(text); }

}  // namespace mivo::app

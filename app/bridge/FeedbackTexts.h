// SPDX-License-Identifier: MIT
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QtCore/QObject>
#include <QtCore/QString>

#include "mivo/roadmap/FeedbackSheet.h"

namespace mivo::app {

/// A `FeedbackSheet`.
struct FeedbackTexts {
  Q_GADGET
  QML_VALUE_TYPE(feedbackTexts)
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(QString ideaLabel MEMBER ideaLabel CONSTANT)
  Q_PROPERTY(QString replyLabel MEMBER replyLabel CONSTANT)
  Q_PROPERTY(QString replyPlaceholder MEMBER replyPlaceholder CONSTANT)
  Q_PROPERTY(QString note MEMBER note CONSTANT)
  Q_PROPERTY(QString button MEMBER button CONSTANT)

 public:
  QString title, ideaLabel, replyLabel, replyPlaceholder, note, button;
  bool operator==(const FeedbackTexts&) const = default;
};

FeedbackTexts feedbackTextsOf(const FeedbackSheet& sheet);

}  // namespace mivo::app

// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QFileSystemWatcher>
#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <cstdint>
#include <filesystem>
#include <vector>

namespace mivo::app {

/// Says that files were written, replaced, made or removed, by whichever program: once for changes that come together.
/// To read one, or to change who may, is no change.
class FileWatch : public QObject {
  Q_OBJECT

 public:
  /// The files need not be there; their folders are made.
  explicit FileWatch(std::vector<std::filesystem::path> files);

 Q_SIGNALS:
  void changed();

 private:
  /// Tells two states of a file apart; all zeros where there is none.
  struct Stamp {
    std::uint64_t place = 0;
    std::int64_t size = 0, seconds = 0, nanoseconds = 0;
    bool operator==(const Stamp&) const = default;
  };
  static Stamp stampOf(const std::filesystem::path& file);

  void watch();
  void compare();

  std::vector<std::filesystem::path> files;
  std::vector<Stamp> seen;
  QFileSystemWatcher watcher;
  QTimer quiet;
};

}  // namespace mivo::app

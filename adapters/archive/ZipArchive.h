// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace mivo::adapters {

/// A zip archive that is read where it lies. Errors are sentences of the library's. Thread: one at a time.
class ZipArchive {
 public:
  /// One of its files.
  struct Entry {
    std::uint64_t index = 0;
    std::string name;        ///< UTF-8; whoever made the archive may have put anything into it
    std::uint64_t size = 0;  ///< as the archive says
  };

  /// Whether the beginning of a file is an archive's.
  static bool isZip(std::string_view beginning);

  /// Reads the directory of the archive in an open file, which must be seekable and stays the caller's.
  static tl::expected<ZipArchive, std::string> open(int file);
  ~ZipArchive();
  ZipArchive(ZipArchive&&) noexcept;
  ZipArchive& operator=(ZipArchive&&) noexcept;

  /// Its files, without folders, in the archive's order.
  const std::vector<Entry>& entries() const { return files; }

  /// Hands the content of one over piece by piece, until `take` answers false.
  tl::expected<void, std::string> read(const Entry& entry, const std::function<bool(std::string_view)>& take);

 private:
  struct Handle;
  explicit ZipArchive(std::unique_ptr<Handle> opened);

  std::unique_ptr<Handle> handle;
  std::vector<Entry> files;
};

}  // namespace mivo::adapters

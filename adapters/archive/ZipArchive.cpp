// SPDX-License-Identifier: MIT
#include "adapters/archive/ZipArchive.h"

#include <fcntl.h>
#include <unistd.h>
#include <zip.h>

#include <cerrno>
#include <system_error>
#include <utility>

namespace mivo::adapters {
namespace {

std::string sentence(int code) {
  zip_error_t error;
  zip_error_init_with_code(&error, code);
  std::string text = zip_error_strerror(&error);
  zip_error_fini(&error);
  return text;
}

}  // namespace

struct ZipArchive::Handle {
  explicit Handle(zip_t* opened) : zip{opened} {}
  ~Handle() { zip_discard(zip); }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  zip_t* zip;
};

ZipArchive::ZipArchive(std::unique_ptr<Handle> opened) : handle{std::move(opened)} {
  const auto count = static_cast<std::uint64_t>(std::max<zip_int64_t>(0, zip_get_num_entries(handle->zip, 0)));
  for (std::uint64_t index = 0; index < count; ++index) {
    zip_stat_t status;
    zip_stat_init(&status);
    if (zip_stat_index(handle->zip, index, 0, &status) != 0 || (status.valid & ZIP_STAT_NAME) == 0) continue;
    const std::string_view name = status.name;
    if (name.ends_with('/')) continue;
    files.push_back({index, std::string{name}, (status.valid & ZIP_STAT_SIZE) != 0 ? status.size : 0});
  }
}

ZipArchive::~ZipArchive() = default;
ZipArchive::ZipArchive(ZipArchive&&) noexcept = default;
ZipArchive& ZipArchive::operator=(ZipArchive&&) noexcept = default;

bool ZipArchive::isZip(std::string_view beginning) {
  return beginning.starts_with("PK\x03\x04") || beginning.starts_with("PK\x05\x06");
}

tl::expected<ZipArchive, std::string> ZipArchive::open(int file) {
  const int own = ::fcntl(file, F_DUPFD_CLOEXEC, 0);  // which the library closes
  if (own < 0) return tl::unexpected{std::generic_category().message(errno)};
  int code = 0;
  zip_t* const zip = zip_fdopen(own, 0, &code);
  if (zip != nullptr) return ZipArchive{std::make_unique<Handle>(zip)};
  ::close(own);
  return tl::unexpected{sentence(code)};
}

tl::expected<void, std::string> ZipArchive::read(const Entry& entry,
                                                 const std::function<bool(std::string_view)>& take) {
  constexpr std::size_t pieceInBytes = std::size_t{1} << 16;
  const std::unique_ptr<zip_file_t, decltype(&zip_fclose)> file{zip_fopen_index(handle->zip, entry.index, 0),
                                                                &zip_fclose};
  if (!file) return tl::unexpected{std::string{zip_strerror(handle->zip)}};
  std::string piece(pieceInBytes, '\0');
  for (;;) {
    const zip_int64_t count = zip_fread(file.get(), piece.data(), piece.size());
    if (count < 0) return tl::unexpected{std::string{zip_file_strerror(file.get())}};
    if (count == 0 || !take({piece.data(), static_cast<std::size_t>(count)})) return {};
  }
}

}  // namespace mivo::adapters

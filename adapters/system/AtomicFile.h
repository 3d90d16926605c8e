// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

namespace mivo::adapters {

/// Puts `content` in the place of a file, so that a reader, a crash or a full disk finds the old file or the new one
/// and never a part. The content is on disk when it returns. Missing folders are made; a symbolic link stays one and
/// its target is replaced.
///
/// Errors: std::system_error whose text names the file; the old file is then as it was. Thread: any.
void writeAtomically(const std::filesystem::path& file, std::string_view content);

/// Whether a file that is there already may be replaced.
enum class Existing { replaced, refused };

/// The same for a file that nobody but its owner may read, whatever was there before. No folder is made. Where a file
/// is there and may not be replaced, the code of the error is `std::errc::file_exists`.
void writePrivately(const std::filesystem::path& file, std::string_view content, Existing existing);

}  // namespace mivo::adapters

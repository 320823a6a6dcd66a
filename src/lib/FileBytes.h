#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// What is read of a file when nothing else is said: a device without an end fills the memory no further.
inline constexpr std::size_t kMostFileBytes = std::size_t{1} << 30;

/// All bytes of a file, at most `limit` of them; nothing if it is no readable file.
std::optional<std::string> ReadFileBytes(const char* pszPath, std::size_t limit = kMostFileBytes);

/// Replaces a file whole or not at all: writes beside it, flushes to the disk, renames. Its permissions stay,
/// and a link stays a link. A file that may not be written, a directory, a missing folder or a full disk
/// leave everything as it was. False on failure. A device is written to.
bool ReplaceFile(const char* pszPath, std::string_view bytes);

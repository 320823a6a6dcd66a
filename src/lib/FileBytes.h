#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

/// All bytes of a file, at most `limit` of them; nothing if it is no readable file.
std::optional<std::string> ReadFileBytes(const char* pszPath, std::size_t limit = std::string::npos);

/// Replaces a file whole or not at all: writes beside it, flushes to the disk, renames. A file that may not
/// be written, a directory, a missing folder or a full disk leave everything as it was. False on failure.
bool ReplaceFile(const char* pszPath, std::string_view bytes);

#pragma once

#include <string_view>

/// How much of a file's beginning tells its format.
inline constexpr std::size_t kFormatBytes = 4096;

/// Whether the beginning of a file is that of a design file: among its first kFormatBytes, behind a
/// byte-order mark and white space, stands `<?xml`, or `<telescope` stands anywhere. What begins with the
/// version of the old format is of that format, whatever its texts hold.
bool LooksLikeDesign(std::string_view bytes);

/// The same for the file at `path` (bytes of the file system); false if it cannot be read.
bool LooksLikeDesignFile(const char* path);

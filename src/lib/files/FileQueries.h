#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// 1 if anything stands at the path, a directory too; otherwise 0, as for a null pointer.
int FileExists(const char* pszPath);

/// Length in bytes; 0 if the file cannot be opened, so an empty file and a missing one look alike. A
/// directory has no length: 0, nor has a null pointer.
std::int64_t FileSize(const char* pszPath);

/// The names in a folder (empty: the current one) but for "." and "..", in no order; none if it cannot be
/// read.
std::vector<std::string> FolderNames(const std::string& folder);

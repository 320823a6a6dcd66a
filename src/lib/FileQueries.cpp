#include "lib/FileQueries.h"

#include <cstdio>
#include <filesystem>

int FileExists(const char* pszPath)
{
    std::error_code error;
    return std::filesystem::exists(pszPath, error) ? 1 : 0;
}

std::int64_t FileSize(const char* pszPath)
{
    std::FILE* const file = std::fopen(pszPath, "rb");
    if (file == nullptr) {
        return 0;
    }
    std::fclose(file);
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(pszPath, error);
    return error ? 0 : static_cast<std::int64_t>(size);
}

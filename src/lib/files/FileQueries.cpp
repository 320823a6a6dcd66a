#include "lib/files/FileQueries.h"

#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

int FileExists(const char* pszPath)
{
    std::error_code error;
    return pszPath != nullptr && std::filesystem::exists(pszPath, error) ? 1 : 0;
}

std::int64_t FileSize(const char* pszPath)
{
    // Only a file that can be opened has a size. Opening a pipe must not wait for its other end.
    const int fd = pszPath != nullptr ? open(pszPath, O_RDONLY | O_NONBLOCK | O_CLOEXEC) : -1;
    if (fd < 0) {
        return 0;
    }
    struct stat status = {};
    const bool sized = fstat(fd, &status) == 0 && S_ISREG(status.st_mode);
    close(fd);
    return sized ? status.st_size : 0;
}

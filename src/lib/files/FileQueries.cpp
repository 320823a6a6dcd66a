#include "lib/files/FileQueries.h"

#include <filesystem>
#include <memory>

#include <dirent.h>
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

// The standard library's own way through a folder ends the program where it finds no memory.
std::vector<std::string> FolderNames(const std::string& folder)
{
    constexpr auto close = [](DIR* directory) { closedir(directory); };
    const std::unique_ptr<DIR, decltype(close)> directory(opendir(folder.empty() ? "." : folder.c_str()));
    std::vector<std::string> names;
    const dirent* entry = nullptr;
    while (directory && (entry = readdir(directory.get())) != nullptr) {
        std::string name = entry->d_name;
        if (name != "." && name != "..") {
            names.push_back(std::move(name));
        }
    }
    return names;
}

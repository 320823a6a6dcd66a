#include "lib/FileBytes.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

bool WriteAll(int fd, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = write(fd, bytes.data(), bytes.size());
        if (written <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool WriteAndClose(int fd, std::string_view bytes, bool flush)
{
    bool done = WriteAll(fd, bytes);
    done = (!flush || fsync(fd) == 0) && done;
    return close(fd) == 0 && done;
}

/// The mode of the file to be replaced; for a new file what the process's mask leaves of 0666.
mode_t ModeFor(const struct stat* old)
{
    if (old != nullptr) {
        return old->st_mode & 07777;
    }
    const mode_t mask = umask(0);
    umask(mask);
    return static_cast<mode_t>(0666 & ~mask);
}

} // namespace

std::optional<std::string> ReadFileBytes(const char* pszPath, std::size_t limit)
{
    std::error_code error;
    if (fs::is_directory(pszPath, error)) {
        return std::nullopt;
    }
    const File file(std::fopen(pszPath, "rb"));
    if (!file) {
        return std::nullopt;
    }
    std::string bytes;
    char block[65536];
    while (bytes.size() < limit) {
        const std::size_t wanted = std::min(sizeof block, limit - bytes.size());
        const std::size_t got = std::fread(block, 1, wanted, file.get());
        bytes.append(block, got);
        if (got < wanted) {
            break;
        }
    }
    return std::ferror(file.get()) != 0 ? std::nullopt : std::optional<std::string>(std::move(bytes));
}

bool ReplaceFile(const char* pszPath, std::string_view bytes)
{
    // A link stays a link: the file that it leads to is replaced.
    std::error_code error;
    fs::path target = fs::canonical(pszPath, error);
    target = error ? fs::path(pszPath) : target;

    struct stat old = {};
    const bool exists = stat(target.c_str(), &old) == 0;
    if (exists && access(target.c_str(), W_OK) != 0) {
        return false;
    }
    if (exists && !S_ISREG(old.st_mode)) {
        // A device or a pipe cannot be replaced; a directory fails to open.
        const int fd = open(target.c_str(), O_WRONLY);
        return fd >= 0 && WriteAndClose(fd, bytes, false);
    }

    std::string beside = target.string() + ".XXXXXX";
    const int fd = mkstemp(beside.data());
    if (fd < 0) {
        return false;
    }
    const bool moded = fchmod(fd, ModeFor(exists ? &old : nullptr)) == 0;
    const bool written = WriteAndClose(fd, bytes, true) && moded;
    if (written && std::rename(beside.c_str(), target.c_str()) == 0) {
        return true;
    }
    unlink(beside.c_str());
    return false;
}

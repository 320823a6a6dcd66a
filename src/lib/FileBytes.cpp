#include "lib/FileBytes.h"

#include <algorithm>
#include <cerrno>
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
        if (written < 0 && errno == EINTR) {
            continue;
        }
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

/// The path that the links at `path` lead to, whether anything stands there or not; nothing for a ring of
/// links.
std::optional<fs::path> FollowLinks(fs::path path)
{
    constexpr int kMostLinks = 40; // as the system itself follows
    for (int i = 0; i < kMostLinks; ++i) {
        std::error_code error;
        if (!fs::is_symlink(path, error)) {
            return path;
        }
        path = path.parent_path() / fs::read_symlink(path, error);
    }
    return std::nullopt;
}

/// A device or a pipe cannot be replaced, so it is written; a directory fails to open. A pipe that nobody
/// reads is not waited for.
bool WriteToDevice(const fs::path& target, std::string_view bytes)
{
    const int fd = open(target.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    return fd >= 0 && fcntl(fd, F_SETFL, 0) == 0 && WriteAndClose(fd, bytes, false);
}

/// Gives the new file the owner and the mode of the one that it replaces, null for none; then the process's
/// mask cuts 0666.
bool TakeRights(int fd, const struct stat* old)
{
    if (old != nullptr) {
        // Only root can give a file away; for everyone else the owner is the one who writes.
        const bool given = fchown(fd, old->st_uid, old->st_gid) == 0;
        return fchmod(fd, old->st_mode & (given ? 07777 : 0777)) == 0;
    }
    const mode_t mask = umask(0);
    umask(mask);
    return fchmod(fd, 0666 & ~mask) == 0;
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
    const std::optional<fs::path> target = FollowLinks(pszPath);
    if (!target) {
        return false;
    }
    struct stat old = {};
    const bool exists = stat(target->c_str(), &old) == 0;
    if (exists && access(target->c_str(), W_OK) != 0) {
        return false;
    }
    if (exists && !S_ISREG(old.st_mode)) {
        return WriteToDevice(*target, bytes);
    }

    // Not the file's own name with an ending: that could be too long.
    std::string beside = (target->parent_path() / ".orreva-XXXXXX").string();
    const int fd = mkstemp(beside.data());
    if (fd < 0) {
        return false;
    }
    const bool rights = TakeRights(fd, exists ? &old : nullptr);
    const bool written = WriteAndClose(fd, bytes, true) && rights;
    if (written && std::rename(beside.c_str(), target->c_str()) == 0) {
        return true;
    }
    unlink(beside.c_str());
    return false;
}

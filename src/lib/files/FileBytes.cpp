#include "lib/files/FileBytes.h"

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

/// A device or a pipe to be written; a directory fails to open. A pipe that nobody reads is not waited for.
int OpenDevice(const std::string& path)
{
    const int fd = open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd >= 0 && fcntl(fd, F_SETFL, 0) != 0) {
        close(fd);
        return -1;
    }
    return fd;
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
    if (!fs::is_regular_file(pszPath, error)) {
        return std::nullopt;
    }
    const File file(std::fopen(pszPath, "rb"));
    return file ? ReadStreamBytes(file.get(), limit) : std::nullopt;
}

std::optional<std::string> ReadStreamBytes(std::FILE* file, std::size_t limit)
{
    std::string bytes;
    char block[65536];
    while (bytes.size() < limit) {
        const std::size_t wanted = std::min(sizeof block, limit - bytes.size());
        const std::size_t got = std::fread(block, 1, wanted, file);
        bytes.append(block, got);
        if (got < wanted) {
            break;
        }
    }
    return std::ferror(file) != 0 ? std::nullopt : std::optional<std::string>(std::move(bytes));
}

FileReplacement::FileReplacement(const char* pszPath)
{
    // A link stays a link: the file that it leads to is replaced.
    const std::optional<fs::path> path = FollowLinks(pszPath);
    if (!path) {
        return;
    }
    m_target = path->string();
    struct stat old = {};
    const bool exists = stat(m_target.c_str(), &old) == 0;
    if (exists && access(m_target.c_str(), W_OK) != 0) {
        return;
    }
    if (exists && !S_ISREG(old.st_mode)) {
        m_fd = OpenDevice(m_target);
        m_good = m_fd >= 0;
        return;
    }
    // Not the file's own name with an ending: that could be too long.
    m_beside = (path->parent_path() / ".orreva-XXXXXX").string();
    m_fd = mkstemp(m_beside.data());
    m_good = m_fd >= 0 && TakeRights(m_fd, exists ? &old : nullptr);
}

FileReplacement::~FileReplacement()
{
    if (m_fd >= 0) {
        Close();
        unlink(m_beside.c_str());
    }
}

bool FileReplacement::Write(std::string_view bytes)
{
    m_good = m_good && WriteAll(m_fd, bytes);
    return m_good;
}

bool FileReplacement::Close()
{
    const bool closed = close(m_fd) == 0;
    m_fd = -1;
    return closed;
}

bool FileReplacement::Commit()
{
    if (m_fd < 0) {
        return false;
    }
    const bool replaces = !m_beside.empty();
    const bool flushed = m_good && (!replaces || fsync(m_fd) == 0);
    if (Close() && flushed && (!replaces || std::rename(m_beside.c_str(), m_target.c_str()) == 0)) {
        return true;
    }
    unlink(m_beside.c_str());
    return false;
}

bool ReplaceFile(const char* pszPath, std::string_view bytes)
{
    FileReplacement file(pszPath);
    return file.Write(bytes) && file.Commit();
}

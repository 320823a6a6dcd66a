#include "lib/files/Descriptors.h"
#include "lib/files/FileBytes.h"
#include "lib/files/FileRights.h"
#include "lib/files/TemporaryFiles.h"

#include <cerrno>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// The path that the links at `path` lead to, whether anything stands there or not; nothing for a ring of
/// links. A link to an open descriptor is such a path: its text may be no path at all.
std::optional<fs::path> FollowLinks(fs::path path)
{
    constexpr int kMostLinks = 40; // as the system itself follows
    for (int i = 0; i < kMostLinks; ++i) {
        std::error_code error;
        if (OpenDescriptorOf(path.string()) || !fs::is_symlink(path, error)) {
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

/// The codes that say that a file cannot be replaced where it stands, though it may be writable.
bool MeansInPlace(int error)
{
    return error == EACCES || error == EPERM || error == EROFS || error == EBUSY || error == EXDEV;
}

/// The rename is done by now; a folder that cannot be flushed leaves the save done.
void FlushFolder(const fs::path& folder)
{
    const Descriptor opened(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened) {
        fsync(opened.Number());
    }
}

bool CopyAll(int from, int to)
{
    char block[65536];
    off_t at = 0;
    for (;;) {
        const ssize_t got = pread(from, block, sizeof block, at);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            return got == 0;
        }
        if (!WriteAll(to, {block, static_cast<std::size_t>(got)})) {
            return false;
        }
        at += got;
    }
}

bool PutBack(int fd, std::string_view old)
{
    return lseek(fd, 0, SEEK_SET) == 0 && WriteAll(fd, old) &&
           ftruncate(fd, static_cast<off_t>(old.size())) == 0 && fsync(fd) == 0;
}

/// Writes what stands in `from` over the open file. The room is taken first, so that a full disk is seen
/// before a byte is lost; a file system that cannot take it is written without.
bool Overwrite(int fd, int from)
{
    struct stat size = {};
    if (fstat(from, &size) != 0 || (size.st_size > 0 && fallocate(fd, 0, 0, size.st_size) != 0 &&
                                    (errno == ENOSPC || errno == EDQUOT || errno == EFBIG))) {
        return false;
    }
    return CopyAll(from, fd) && ftruncate(fd, size.st_size) == 0 && fsync(fd) == 0;
}

} // namespace

FileReplacement::FileReplacement(const char* pszPath, PutAside putAside) : m_putAside(std::move(putAside))
{
    // A link stays a link: the file that it leads to is replaced.
    const std::optional<fs::path> path = FollowLinks(pszPath);
    if (!path) {
        FailWith(ELOOP);
        return;
    }
    m_target = path->string();
    if (const auto number = OpenDescriptorOf(m_target)) {
        OpenStream(fcntl(*number, F_DUPFD_CLOEXEC, 0));
        return;
    }
    struct stat old = {};
    m_exists = stat(m_target.c_str(), &old) == 0;
    if (m_exists && access(m_target.c_str(), W_OK) != 0) {
        FailWith(errno);
    } else if (m_exists && !S_ISREG(old.st_mode)) {
        OpenStream(OpenDevice(m_target));
    } else {
        OpenBeside(m_exists ? &old : nullptr);
    }
}

FileReplacement::~FileReplacement()
{
    if (m_stream >= 0) {
        close(m_stream);
    }
}

void FileReplacement::OpenStream(int fd)
{
    m_stream = fd;
    if (fd < 0) {
        FailWith(errno);
    }
}

void FileReplacement::OpenBeside(const struct stat* old)
{
    const std::string folder = fs::path(m_target).parent_path().string();
    RemoveStaleFiles(folder);
    constexpr mode_t kPrivate = 0600;
    constexpr mode_t kUsual = 0666;
    m_file = std::make_unique<TemporaryFile>();
    if (m_file->Make(folder, old != nullptr ? kPrivate : kUsual)) {
        m_inPlace = old != nullptr && !TakeRights(m_file->Number(), m_target, *old) && m_putAside;
        return;
    }
    const int error = errno;
    std::error_code none;
    m_inPlace = old != nullptr && m_putAside && MeansInPlace(error);
    if (!m_inPlace) {
        FailWith(error);
        return;
    }
    const std::string elsewhere = fs::temp_directory_path(none).string();
    RemoveStaleFiles(elsewhere);
    if (!m_file->Make(elsewhere, kPrivate)) {
        FailWith(error);
    }
}

bool FileReplacement::FailWith(int error)
{
    if (m_outcome.error == 0) {
        m_outcome.error = error != 0 ? error : EIO;
    }
    return false;
}

bool FileReplacement::Write(std::string_view bytes)
{
    if (m_outcome && !WriteAll(m_stream >= 0 ? m_stream : m_file->Number(), bytes)) {
        FailWith(errno);
    }
    return m_outcome.error == 0;
}

bool FileReplacement::Commit()
{
    if (m_outcome && m_stream >= 0) {
        const int fd = std::exchange(m_stream, -1);
        return close(fd) == 0 || FailWith(errno);
    }
    if (m_outcome && m_file) {
        const bool done = m_inPlace ? WriteInPlace() : RenameOver();
        m_file.reset();
        return done;
    }
    return FailWith(EBADF);
}

bool FileReplacement::RenameOver()
{
    // Some file systems tell of a failed write at the closing alone; the lock stays with the first
    // descriptor.
    Descriptor second(fcntl(m_file->Number(), F_DUPFD_CLOEXEC, 0));
    if (!second || fsync(m_file->Number()) != 0 || !second.Close()) {
        return FailWith(errno);
    }
    if (!m_file->RenameTo(m_target)) {
        return m_exists && m_putAside && MeansInPlace(errno) ? WriteInPlace() : FailWith(errno);
    }
    FlushFolder(fs::path(m_target).parent_path());
    return true;
}

bool FileReplacement::WriteInPlace()
{
    int error = 0;
    const auto old = ReadInput(m_target, kMostKeptBytes, error);
    if (!old) {
        return FailWith(error);
    }
    const std::string kept = m_putAside(m_target, *old);
    if (kept.empty()) {
        return FailWith(EACCES); // the reason why it is not simply replaced
    }
    const HeldSignals held;
    Descriptor file(open(m_target.c_str(), O_WRONLY | O_CLOEXEC));
    if (!file) {
        return FailWith(errno);
    }
    if (Overwrite(file.Number(), m_file->Number())) {
        return true;
    }
    FailWith(errno);
    if (!PutBack(file.Number(), *old)) {
        m_outcome.kept = kept;
    }
    return false;
}

int CopyFileBeside(const std::string& path, const std::string& copy)
{
    const Descriptor from(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat old = {};
    TemporaryFile file;
    if (!from || fstat(from.Number(), &old) != 0 || !file.Make(fs::path(copy).parent_path().string(), 0600)) {
        return errno;
    }
    TakeRights(file.Number(), path, old);
    if (!CopyAll(from.Number(), file.Number())) {
        return errno;
    }
    const timespec times[] = {old.st_atim, old.st_mtim};
    futimens(file.Number(), times); // so that one sees how old it is
    return fsync(file.Number()) == 0 && file.RenameTo(copy) ? 0 : errno;
}

SaveOutcome ReplaceFile(const char* pszPath, std::string_view bytes, const PutAside& putAside)
{
    FileReplacement file(pszPath, putAside);
    if (file.Write(bytes)) {
        file.Commit();
    }
    return file.Outcome();
}

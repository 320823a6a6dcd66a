#include "lib/files/FileBytes.h"

#include "lib/files/Descriptors.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// The pieces that a descriptor gives; it is waited for where it has none yet.
ReadPiece PiecesOf(int fd)
{
    return [fd](char* bytes, std::size_t size) {
        ssize_t got = read(fd, bytes, size);
        while (got < 0 && (errno == EINTR || WaitUntilReady(fd, Ready::ToRead))) {
            got = read(fd, bytes, size);
        }
        return std::ptrdiff_t{got};
    };
}

} // namespace

bool ReadPieces(const ReadPiece& read, std::size_t limit, std::string& bytes)
{
    char block[65536];
    while (bytes.size() < limit) {
        const std::ptrdiff_t got = read(block, std::min(sizeof block, limit - bytes.size()));
        if (got <= 0) {
            return got == 0;
        }
        bytes.append(block, static_cast<std::size_t>(got));
    }
    return true;
}

std::optional<std::string> ReadFileBytes(const char* pszPath, std::size_t limit)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(pszPath, error)) {
        return std::nullopt;
    }
    const Descriptor file(open(pszPath, O_RDONLY | O_CLOEXEC));
    std::string bytes;
    if (!file || !ReadPieces(PiecesOf(file.Number()), limit, bytes)) {
        return std::nullopt;
    }
    return bytes;
}

std::optional<std::string> ReadInput(const std::string& path, std::size_t limit, int& error)
{
    const std::optional<int> given = path == "-" ? std::optional(STDIN_FILENO) : OpenDescriptorOf(path);
    const Descriptor file(given ? fcntl(*given, F_DUPFD_CLOEXEC, 0)
                                : open(path.c_str(), O_RDONLY | O_CLOEXEC));
    std::string bytes;
    if (!file || !ReadPieces(PiecesOf(file.Number()), limit + 1, bytes)) {
        error = errno;
        return std::nullopt;
    }
    error = bytes.size() > limit ? EFBIG : 0;
    return error == 0 ? std::optional(std::move(bytes)) : std::nullopt;
}

#include "lib/files/FileBytes.h"
#include "lib/files/TextLines.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

// A file whose reads come in pieces and fail at a chosen place. The input begins with two bytes of that
// place, one of the pieces' size and one of the limit; the rest is the file.

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

struct Disk {
    std::string_view bytes;
    std::size_t good;  ///< bytes that can be read; a read behind them fails
    std::size_t piece; ///< bytes that a read gives at most
    std::size_t at = 0;
};

ssize_t ReadDisk(void* cookie, char* target, std::size_t size)
{
    Disk& disk = *static_cast<Disk*>(cookie);
    if (disk.at >= disk.good) {
        errno = EIO;
        return -1;
    }
    const std::size_t count = std::min({size, disk.piece, disk.good - disk.at, disk.bytes.size() - disk.at});
    disk.bytes.copy(target, count, disk.at);
    disk.at += count;
    return static_cast<ssize_t>(count);
}

File Open(Disk& disk)
{
    disk.at = 0;
    return File(fopencookie(&disk, "rb", {ReadDisk, nullptr, nullptr, nullptr}));
}

void Require(bool held, const char* what)
{
    if (!held) {
        std::fprintf(stderr, "%s\n", what);
        std::abort();
    }
}

void ReadBytes(Disk& disk, std::size_t limit)
{
    disk.at = 0;
    std::string read;
    const bool whole = ReadPieces(
        [&disk](char* target, std::size_t size) { return ReadDisk(&disk, target, size); }, limit, read);
    const bool fails = disk.good <= disk.bytes.size() && disk.good < limit;
    Require(whole != fails, fails ? "a failed read is a file" : "a readable file is none");
    Require(fails || read == disk.bytes.substr(0, limit), "other bytes are read");
}

/// The lines of what can be read before it fails, made in whole texts.
std::string PlainText(const Disk& disk)
{
    std::string text(disk.bytes.substr(0, disk.good));
    text.resize(std::min(text.find('\0'), text.size()));
    for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n", at + 1)) {
        text.erase(at, 1);
    }
    return text;
}

void ReadLines(Disk& disk, std::size_t nSize)
{
    const std::string text = PlainText(disk);
    const File file = Open(disk);
    std::string line(nSize, 'x');
    std::size_t at = 0;
    while (ReadTextLine(line.data(), static_cast<int>(nSize), file.get()) != nullptr) {
        const std::size_t end = text.find('\n', at);
        const std::size_t length =
            std::min((end == std::string::npos ? text.size() : end + 1) - at, nSize - 1);
        Require(length > 0 && text.substr(at, length) == line.c_str(), "another line is read");
        at += length;
    }
    Require(at == text.size(), "lines are lost");
    Require(line[0] == 0, "the target is not empty at the end");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t kHead = 4;
    if (size < kHead) {
        return 0;
    }
    Disk disk{{reinterpret_cast<const char*>(data) + kHead, size - kHead},
              std::size_t{data[0]} + 256 * data[1],
              std::size_t{data[2]} + 1};
    for (const std::size_t limit : {std::size_t{data[3]}, kMostFileBytes}) {
        ReadBytes(disk, limit);
    }
    for (const std::size_t nSize : {std::size_t{2}, std::size_t{data[3]} + 2, std::size_t{2048}}) {
        ReadLines(disk, nSize);
    }
    return 0;
}

#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

class TemporaryFile;

/// What is read of a file when nothing else is said.
inline constexpr std::size_t kMostFileBytes = std::size_t{1} << 30;

/// All bytes of a file, at most `limit` of them; nothing if it is no readable regular file: a pipe that
/// nobody fills would be waited for, and a device may have no end.
std::optional<std::string> ReadFileBytes(const char* pszPath, std::size_t limit = kMostFileBytes);

/// Gives up to `size` next bytes of a file and their number: 0 at its end, below 0 for an error (`errno`).
using ReadPiece = std::function<std::ptrdiff_t(char* bytes, std::size_t size)>;
/// Appends pieces until `bytes` has `limit` of them or the file ends. False if a read fails before.
bool ReadPieces(const ReadPiece& read, std::size_t limit, std::string& bytes);

/// All bytes of a file, a pipe or a device, read once to the end; "-" is standard input. Nothing if it cannot
/// be read to its end or has more than `limit` bytes; `error` is then the system's code (EFBIG: too long).
std::optional<std::string> ReadInput(const std::string& path, std::size_t limit, int& error);

/// How a save ended.
struct SaveOutcome {
    int error = 0; ///< the system's code of what failed (see FileReason); 0: saved
    /// Where a copy of the old bytes stands, if a failed save could not put them back into the file.
    std::string kept{};

    explicit operator bool() const { return error == 0; }
};

/// Puts a copy of `bytes`, which stand in the file at `path`, aside before that file is written in place.
/// Gives the path of the copy; empty if there is none: the file is then not written.
using PutAside = std::function<std::string(const std::string& path, std::string_view bytes)>;

/// No file above this length is written in place: its copy would be too long to be kept.
inline constexpr std::size_t kMostKeptBytes = 20'000'000;

/// The new contents of a file, written piece by piece beside it. The file is replaced whole by Commit or left
/// as it was: the pieces are flushed to the disk and renamed into its place. Owner, group, rights, access
/// list and extended attributes stay; rights that would pass to another group go.
///
/// A device, a pipe or an open descriptor (/dev/stdout, /dev/fd/N, /proc/self/fd/N) cannot be replaced and
/// takes the pieces as they come. A file that can be written but not replaced, since its folder cannot be
/// written or its attributes cannot be kept, is written in place by Commit, if `putAside` keeps a copy
/// first; where that fails halfway, the old bytes are put back.
class FileReplacement {
public:
    explicit FileReplacement(const char* pszPath, PutAside putAside = {});
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// False once a piece could not be written; Commit fails then.
    bool Write(std::string_view bytes);
    bool Commit();
    const SaveOutcome& Outcome() const { return m_outcome; }

private:
    void OpenStream(int fd);
    void OpenBeside(const struct stat* old);
    bool FailWith(int error);
    bool RenameOver();
    bool WriteInPlace();

    PutAside m_putAside;
    std::string m_target;
    int m_stream = -1;                     ///< what takes the pieces as they come
    std::unique_ptr<TemporaryFile> m_file; ///< the pieces of any other
    bool m_exists = false;                 ///< a file stands at the target
    bool m_inPlace = false;                ///< it can only be written in place
    SaveOutcome m_outcome;
};

/// Copies a file, with its rights and its time, to `copy` beside it, whole or not at all; what stands there
/// is replaced. 0, or the system's code of what failed.
int CopyFileBeside(const std::string& path, const std::string& copy);

/// Replaces a file whole or not at all, as FileReplacement does. A file that may not be written, a directory,
/// a missing folder or a full disk leave everything as it was.
SaveOutcome ReplaceFile(const char* pszPath, std::string_view bytes, const PutAside& putAside = {});

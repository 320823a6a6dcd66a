#pragma once

#include <cstddef>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

/// What is read of a file when nothing else is said.
inline constexpr std::size_t kMostFileBytes = std::size_t{1} << 30;

/// All bytes of a file, at most `limit` of them; nothing if it is no readable regular file: a pipe that
/// nobody fills would be waited for, and a device may have no end.
std::optional<std::string> ReadFileBytes(const char* pszPath, std::size_t limit = kMostFileBytes);

/// The bytes of an open file from where it stands, at most `limit` of them; nothing if reading fails before.
std::optional<std::string> ReadStreamBytes(std::FILE* file, std::size_t limit = kMostFileBytes);

/// The new contents of a file, written piece by piece beside it. The file is replaced whole by Commit or left
/// as it was: the pieces are flushed to the disk and renamed into its place. A device or a pipe, which cannot
/// be replaced, takes the pieces as they come.
class FileReplacement {
public:
    explicit FileReplacement(const char* pszPath);
    ~FileReplacement();
    FileReplacement(const FileReplacement&) = delete;
    FileReplacement& operator=(const FileReplacement&) = delete;

    /// False once a piece could not be written; Commit fails then.
    bool Write(std::string_view bytes);
    bool Commit();

private:
    bool Close();

    std::string m_target;
    std::string m_beside; ///< empty for a device
    int m_fd = -1;
    bool m_good = false;
};

/// Replaces a file whole or not at all, which takes the right to write into its folder. A file that may not
/// be written, a directory, a missing folder or a full disk leave everything as it was. False on failure.
bool ReplaceFile(const char* pszPath, std::string_view bytes);

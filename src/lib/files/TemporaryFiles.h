#pragma once

#include <string>

#include <sys/types.h>

/// A temporary file that lives as long as this object: it is removed at the end, and also when SIGTERM,
/// SIGINT or SIGHUP end the program. Its maker holds it locked, so that other programs can tell it from one
/// that was left behind. While one lives, SIGXFSZ is left to the failing write.
class TemporaryFile {
public:
    TemporaryFile();
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// Makes the file in a folder (empty: the current one), open for reading and writing; `mode` is cut by
    /// the process's mask. False on failure (`errno`).
    bool Make(const std::string& folder, mode_t mode);
    /// Gives the file another name, in place of what stands there; it is no temporary one any more.
    bool RenameTo(const std::string& path);

    bool IsMade() const { return m_fd >= 0; }
    int Number() const { return m_fd; }
    const std::string& Path() const { return m_path; }

private:
    void Forget();

    std::string m_path;
    int m_fd = -1;
    int m_place = -1; ///< among the files that a signal removes; none is left for the ninth at a time
};

/// Removes the temporary files in a folder that programs of this user left behind: those that nobody holds.
void RemoveStaleFiles(const std::string& folder);

/// While one lives beside a TemporaryFile, those signals wait: what is under way is not to be left half.
class HeldSignals {
public:
    HeldSignals();
    ~HeldSignals();
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;
};

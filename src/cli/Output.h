#pragma once

#include "lib/files/FileBytes.h"

#include <optional>
#include <string>
#include <string_view>

/// Exit status of the program.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kFaults = 3; ///< a design that was checked has errors or warnings

/// Where a verb's bytes go: to the file at a path, which appears whole or not at all, or, for an empty path
/// or
/// "-", to standard output as they come. A reader that goes away has seen enough: what is written then fails,
/// and yet all is well.
class Output {
public:
    explicit Output(const std::string& path);

    /// False once something could not be written, or the reader went away.
    bool Write(std::string_view bytes);
    /// Hands over what stands so far, so that a reader need not wait for the rest.
    bool Flush();
    /// The exit status; a failure is told on standard error.
    int Finish();
    /// Whether the reader went away.
    bool IsReaderGone() const;

private:
    bool Check(bool good);

    std::string m_path;
    std::optional<FileReplacement> m_file;
    int m_error = 0;
};

/// All bytes at once. The exit status.
int WriteOutput(const std::string& path, std::string_view bytes);

/// A copy of a file that has to be written in place goes among the rescue copies.
PutAside CompanionPutAside();

/// One line on standard error; the exit status that goes with it.
int Fail(const std::string& reason);

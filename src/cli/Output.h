#pragma once

#include "lib/files/FileBytes.h"

#include <optional>
#include <string>
#include <string_view>

/// Exit status of the program.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;

/// Where a verb's bytes go: to the file at a path, which appears whole or not at all, or, for an empty path
/// or
/// "-", to standard output as they come.
class Output {
public:
    explicit Output(const std::string& path);

    /// False once something could not be written, or the reader went away.
    bool Write(std::string_view bytes);
    /// Hands over what stands so far, so that a reader need not wait for the rest.
    bool Flush();
    /// The exit status; a failure is told on standard error. A reader that has seen enough is none.
    int Finish();
    /// Whether the reader went away.
    bool IsLeft() const;

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

#pragma once

#include <string>
#include <string_view>

/// Exit status of the program.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;

/// Writes bytes as they are: to the file at `path`, whole or not at all, or to standard output when it is
/// empty. A failure is told on standard error. The exit status.
int WriteOutput(const std::string& path, std::string_view bytes);

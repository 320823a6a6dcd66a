#pragma once

#include <string>
#include <string_view>

class COrrevaDoc;
struct Words;

inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;

/// Writes the bytes to the file of `-o`, whole or not at all, or to standard output; the exit status.
int WriteOutput(const Words& words, std::string_view bytes);

/// One line on standard error; the exit status for it.
int Fail(const std::string& reason);

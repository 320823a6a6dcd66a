#pragma once

#include <optional>
#include <string>

/// All bytes of the file that a word of the command line names: a file, a pipe, or "-" for standard input,
/// read once to its end. What cannot be read whole, or is longer than any design (64 MiB), is told on
/// standard error and gives nothing.
std::optional<std::string> ReadInputWord(const std::string& word);

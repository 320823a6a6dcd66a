#pragma once

#include <string>

/// What a run of the companion left.
struct CliRun {
    int status;
    std::string out;
    std::string err;
};

/// Runs orreva-cli with words as a shell takes them, in the current directory; `input` is its standard input.
CliRun Cli(const std::string& words, const std::string& input = "");

#pragma once

#include <cstdio>

/// Reads a line of at most `nSize` - 1 characters with its line end, as `fgets` does of a file in text mode:
/// CR LF is one LF on every system, and a zero byte ends the file. Null at the end of the file, with `target`
/// empty.
char* ReadTextLine(char* target, int nSize, std::FILE* file);

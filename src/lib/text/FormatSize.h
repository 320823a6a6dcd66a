#pragma once

#include <cstdarg>
#include <cstddef>
#include <string>

/// What a walk over a format and its arguments tells before anything is printed.
struct FormatSize {
    std::size_t bytes = 1; ///< upper bound of the printed text with its closing zero byte
    bool bad = false;      ///< a letter that is no conversion stopped the count
    char badLetter = 0;    ///< that letter, 0 if the format ended before any
    std::string printable; ///< the format as the runtime is to print it
};

/// Adds up the counted size of `pszFormat`: 1 for a plain character and for "%%", and for each conversion a
/// bound by its letter. `args` is walked along; the caller closes it.
FormatSize CountFormat(const char* pszFormat, std::va_list args);

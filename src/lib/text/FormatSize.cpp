#include "lib/text/FormatSize.h"

#include "lib/text/CharTools.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t kFloatSize = 317; // the longest double by %f, without its precision
constexpr std::size_t kIntegerSize = 32;
constexpr std::size_t kNullTextSize = 6; // "(null)"
constexpr std::size_t kLargestNumber = 1 << 24;

/// One conversion as it stands in the format, from its '%' to its letter.
struct Conversion {
    std::size_t flags = 0;
    std::size_t width = 0;
    std::size_t precision = 0;
    const char* modifiers = nullptr; ///< where the size modifiers stand
    int longs = 0;
    char letter = 0;
};

std::size_t ReadNumber(const char*& p)
{
    std::size_t n = 0;
    for (; IsDigit(*p); ++p) {
        n = std::min(n * 10 + static_cast<std::size_t>(*p - '0'), kLargestNumber);
    }
    return n;
}

/// Reads behind the '%'; `p` is left on the letter.
Conversion ReadConversion(const char*& p)
{
    Conversion c;
    for (; *p != 0 && std::strchr("#-+ 0", *p) != nullptr; ++p) {
        c.flags += *p == '#' ? 2 : (*p == '0' ? 0 : 1);
    }
    c.width = ReadNumber(p);
    if (*p == '.') {
        ++p;
        c.precision = ReadNumber(p);
    }
    c.modifiers = p;
    for (; *p == 'h' || *p == 'l'; ++p) {
        c.longs += *p == 'l' ? 1 : 0;
    }
    c.letter = *p;
    return c;
}

std::size_t TextSize(const Conversion& c, const char* text)
{
    if (text == nullptr) {
        return kNullTextSize;
    }
    return std::max<std::size_t>(std::max(std::strlen(text), c.width) + c.precision, 1);
}

/// The conversion from its '%' at `start` to its letter at `end`, as the runtime is to print it: a byte and a
/// text of bytes, whatever their size modifiers, which the runtime would take for wide characters.
std::string Printable(const Conversion& c, const char* start, const char* end)
{
    if (std::strchr("cCs", c.letter) == nullptr) {
        return std::string(start, end + 1);
    }
    return std::string(start, c.modifiers) + (c.letter == 's' ? 's' : 'c');
}

} // namespace

FormatSize CountFormat(const char* pszFormat, std::va_list args)
{
    std::va_list rest;
    va_copy(rest, args);
    FormatSize size;
    for (const char* p = pszFormat; *p != 0; ++p) {
        const char* const start = p;
        if (*p != '%') {
            size.printable += *p;
            ++size.bytes;
            continue;
        }
        ++p;
        if (*p == '%') {
            size.printable += "%%";
            ++size.bytes;
            continue;
        }
        const Conversion c = ReadConversion(p);
        std::size_t counted = 1 + c.flags;
        bool prints = true;
        switch (c.letter) {
        case 'c':
        case 'C':
            counted = 2 + std::max<std::size_t>(c.width, 1);
            va_arg(rest, int);
            break;
        case 'e':
        case 'E':
        case 'f':
        case 'g':
        case 'G':
            counted += std::max(c.width, kFloatSize) + c.precision;
            va_arg(rest, double);
            break;
        case 'a': // counted like a number of one word, though the runtime prints a double by it
            counted += std::max(c.width, kIntegerSize);
            va_arg(rest, double);
            break;
        case 'd':
        case 'i':
        case 'o':
        case 'u':
        case 'x':
        case 'X':
            counted += std::max(c.width, kIntegerSize);
            if (c.longs > 0) {
                va_arg(rest, long);
            } else {
                va_arg(rest, int);
            }
            break;
        case 'p':
            counted += std::max(c.width, kIntegerSize);
            va_arg(rest, void*);
            break;
        case 's':
            counted += TextSize(c, va_arg(rest, const char*));
            break;
        case 'n':
        case 'r':
            prints = false;
            break;
        case '%':
            counted += c.width;
            break;
        default:
            size.bad = true;
            size.badLetter = c.letter;
            va_end(rest);
            return size;
        }
        size.bytes += counted;
        if (prints) {
            size.printable += Printable(c, start, p);
        }
    }
    va_end(rest);
    return size;
}

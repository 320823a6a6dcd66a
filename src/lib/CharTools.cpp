#include "lib/CharTools.h"

const char* SkipBlanks(const char* p)
{
    while (IsBlank(*p)) {
        ++p;
    }
    return p;
}

namespace {

template <typename Fold>
const char* MatchPrefix(const char* prefix, const char* p, Fold fold)
{
    const char* text = p;
    for (; *prefix != 0; ++prefix, ++text) {
        if (*text == 0 || fold(*prefix) != fold(*text)) {
            return nullptr;
        }
    }
    return p;
}

} // namespace

const char* StartsWith(const char* prefix, const char* p)
{
    return MatchPrefix(prefix, p, [](char c) { return c; });
}

const char* StartsWithNoCase(const char* prefix, const char* p) { return MatchPrefix(prefix, p, FoldUpper); }

char FoldUpper(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 32) {
        return '_';
    }
    if (c >= 'a' && c <= 'z') {
        return static_cast<char>(c - 'a' + 'A');
    }
    if (byte < 128) {
        return c;
    }
    switch (byte) {
    case 0x81:
    case 0x9A:
    case 0xDC:
    case 0xFC:
        return static_cast<char>(0x9A); // ü
    case 0x84:
    case 0x8E:
    case 0xC4:
    case 0xE4:
        return static_cast<char>(0x8E); // ä
    case 0x94:
    case 0x99:
    case 0xD6:
    case 0xF6:
        return static_cast<char>(0x99); // ö
    case 0xDF:
    case 0xE1:
        return static_cast<char>(0xE1); // ß
    default:
        return '_';
    }
}

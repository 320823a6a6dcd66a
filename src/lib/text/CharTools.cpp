#include "lib/text/CharTools.h"

#include <cstring>

namespace {

template <typename Is>
const char* SkipWhile(const char* p, Is is)
{
    while (is(*p)) {
        ++p;
    }
    return p;
}

template <typename Is>
char* CutWhile(char* psz, Is is)
{
    std::size_t n = std::strlen(psz);
    while (n > 0 && is(psz[n - 1])) {
        --n;
    }
    psz[n] = 0;
    return psz;
}

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

const char* SkipBlanks(const char* p) { return SkipWhile(p, IsBlank); }
const char* SkipAll(const char* p) { return SkipWhile(p, IsBlankOrLineEnd); }

const char* SkipSource(const char* psz, bool* pbOpen)
{
    bool open = false;
    const char* p = psz;
    for (;;) {
        p = SkipWhile(p, [](char c) { return c >= 1 && c <= ' '; });
        if (StartsWith("//", p) != nullptr) {
            p = SkipWhile(p, [](char c) { return c != 0 && c != '\r' && c != '\n'; });
        } else if (StartsWith("/*", p) != nullptr) {
            // Byte by byte: a library search may measure all the rest of the text first.
            for (p += 2; *p != 0 && StartsWith("*/", p) == nullptr;) {
                ++p;
            }
            open = *p == 0;
            p += open ? 0 : 2;
        } else {
            break;
        }
    }
    if (pbOpen != nullptr) {
        *pbOpen = open;
    }
    return p;
}

char* TrimRight(char* psz) { return CutWhile(psz, IsBlank); }
char* TrimRightAll(char* psz) { return CutWhile(psz, IsBlankOrLineEnd); }
char* TrimAll(char* psz) { return TrimRightAll(psz) + (SkipAll(psz) - psz); }

void CutLineEnd(char* pszLine) { pszLine[std::strcspn(pszLine, "\r\n")] = 0; }

char* StripComment(char* pszLine)
{
    bool quoted = false;
    for (char* p = pszLine; *p != 0; ++p) {
        if (*p == '\n' || *p == '\r' || (*p == '#' && !quoted)) {
            *p = 0;
            return TrimRight(pszLine);
        }
        quoted = quoted != (*p == '"');
    }
    return nullptr;
}

const char* StartsWith(const char* prefix, const char* p)
{
    return MatchPrefix(prefix, p, [](char c) { return c; });
}

const char* StartsWithNoCase(const char* prefix, const char* p) { return MatchPrefix(prefix, p, FoldUpper); }

const char* FindText(const char* what, const char* text) { return std::strstr(text, what); }

const char* FindTextNoCase(const char* what, const char* text)
{
    for (const char* p = text;; ++p) {
        if (StartsWithNoCase(what, p) != nullptr) {
            return p;
        }
        if (*p == 0) {
            return nullptr;
        }
    }
}

int HexDigitValue(char c)
{
    if (IsDigit(c)) {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

std::int32_t HexToLong(const char* psz)
{
    std::uint32_t value = 0;
    for (; HexDigitValue(*psz) >= 0; ++psz) {
        value = value * 16 + static_cast<std::uint32_t>(HexDigitValue(*psz));
    }
    return static_cast<std::int32_t>(value);
}

#include "lib/platform/LibSupWin32.h"

#include "lib/text/Assertion.h"

#include <algorithm>
#include <string>

namespace {

std::string Padding(const LibString& text, int length, char c)
{
    const auto wanted = static_cast<std::size_t>(std::max(length, 0));
    return std::string(wanted - std::min(wanted, text.Length()), c);
}

using Search = const char* (*)(const char* what, const char* text);

int ReplaceBy(Search search, LibString& source, const char* pszWas, const char* pszMit)
{
    constexpr std::size_t kLongestResult = 2047;
    const std::size_t length = std::strlen(pszWas);
    if (length == 0 || search(pszWas, source) == nullptr) {
        return static_cast<int>(source.Length());
    }
    std::string result;
    const char* p = source;
    while (result.size() <= kLongestResult) {
        const char* const hit = search(pszWas, p);
        if (hit == nullptr) {
            result += p;
            break;
        }
        result.append(p, hit);
        result += pszMit;
        p = hit + length;
    }
    result.resize(std::min(result.size(), kLongestResult));
    source = result.c_str();
    return static_cast<int>(source.Length());
}

} // namespace

void CutComment(char* pszLine)
{
    pszLine[std::strcspn(pszLine, "#\r\n")] = 0;
    TrimRight(pszLine);
}

void AppendLimited(char* p1, const char* p2, std::size_t limit)
{
    LIB_ASSERT(p1 != NULL);
    LIB_ASSERT(p2 != NULL);
    const std::size_t length = std::strlen(p1);
    if (length + 1 < limit) {
        const std::size_t added = std::min(std::strlen(p2), limit - length - 1);
        std::memmove(p1 + length, p2, added);
        p1[length + added] = 0;
    }
}

void PadText(LibString& text, int length, char c)
{
    text = (Padding(text, length, c) + text.GetText()).c_str();
}

void PadRight(LibString& text, int length, char c)
{
    // Assigned, not appended, which would bring blanks back that are trimmed at the left.
    text = (text.GetText() + Padding(text, length, c)).c_str();
}

int Replace(LibString* pszSource, const char* pszWas, const char* pszMit)
{
    LIB_ASSERT(pszSource);
    LIB_ASSERT(pszWas);
    LIB_ASSERT(pszMit);
    return ReplaceBy(FindText, *pszSource, pszWas, pszMit);
}

int ReplaceNoCase(LibString* pszSource, const char* pszWas, const char* pszMit)
{
    LIB_ASSERT(pszSource);
    LIB_ASSERT(pszWas);
    LIB_ASSERT(pszMit);
    return ReplaceBy(FindTextNoCase, *pszSource, pszWas, pszMit);
}

LibString UnquoteField(const char* psz)
{
    LibString text(psz);
    text.TrimBlanks();
    if (text[0] == '"') {
        text = text.Mid(1);
        text.CutAt('"');
    }
    return text;
}

char* ToLower(char* psz)
{
    std::transform(psz, psz + std::strlen(psz), psz, FoldLower);
    return psz;
}

char* ToUpper(char* psz)
{
    std::transform(psz, psz + std::strlen(psz), psz, FoldUpper);
    return psz;
}

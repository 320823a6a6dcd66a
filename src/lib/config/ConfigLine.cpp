#include "lib/config/ConfigLine.h"

#include "lib/text/CharTools.h"

#include <cstring>

namespace {

/// What stands behind the name that the line begins with, null if it begins with another.
char* BehindName(char* pszLine, const char* pszName)
{
    char* const start = pszLine + (SkipBlanks(pszLine) - pszLine);
    return StartsWithNoCase(pszName, start) != nullptr ? start + std::strlen(pszName) : nullptr;
}

/// The value in what stands behind a name, null if the name goes on there.
char* ValueIn(char* rest)
{
    TrimRight(rest);
    if (*rest != 0 && *rest != '=' && !IsBlank(*rest)) {
        return nullptr;
    }
    char* const sign = rest + (SkipBlanks(rest) - rest);
    if (*sign == 0) {
        return sign;
    }
    return *sign == '=' ? sign + 1 + (SkipBlanks(sign + 1) - (sign + 1)) : nullptr;
}

} // namespace

bool IsSectionLine(const char* pszLine) { return *SkipBlanks(pszLine) == '['; }

bool IsSectionHeader(const char* pszLine, const char* pszSection)
{
    const char* const name = SkipBlanks(pszLine) + 1;
    return IsSectionLine(pszLine) && StartsWithNoCase(pszSection, name) != nullptr &&
           name[std::strlen(pszSection)] == ']';
}

char* MatchKey(char* pszLine, const char* pszName)
{
    char* const rest = BehindName(pszLine, pszName);
    if (rest == nullptr) {
        return nullptr;
    }
    StripComment(rest);
    return ValueIn(rest);
}

char* MatchPlainKey(char* pszLine, const char* pszName)
{
    char* const rest = BehindName(pszLine, pszName);
    return rest != nullptr ? ValueIn(rest) : nullptr;
}

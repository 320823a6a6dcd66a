#include "lib/ConfigLine.h"

#include "lib/CharTools.h"

#include <cstring>

bool IsSectionLine(const char* pszLine) { return *SkipBlanks(pszLine) == '['; }

bool IsSectionHeader(const char* pszLine, const char* pszSection)
{
    const char* const name = SkipBlanks(pszLine) + 1;
    return IsSectionLine(pszLine) && StartsWithNoCase(pszSection, name) != nullptr &&
           name[std::strlen(pszSection)] == ']';
}

char* MatchKey(char* pszLine, const char* pszName)
{
    char* const start = pszLine + (SkipBlanks(pszLine) - pszLine);
    if (StartsWithNoCase(pszName, start) == nullptr) {
        return nullptr;
    }
    char* const rest = start + std::strlen(pszName);
    StripComment(rest);
    if (*rest != 0 && *rest != '=' && !IsBlank(*rest)) {
        return nullptr;
    }
    char* const sign = rest + (SkipBlanks(rest) - rest);
    if (*sign == 0) {
        return sign;
    }
    return *sign == '=' ? sign + 1 + (SkipBlanks(sign + 1) - (sign + 1)) : nullptr;
}

#include "lib/text/LibString.h"

void LibString::AddListEntry(const char* psz, char cSeparator)
{
    const LibString entry(psz);
    if (Length() > 0) {
        *this += cSeparator;
    }
    *this += entry;
}

bool LibString::RemoveListEntry(const char* psz, char cSeparator)
{
    const LibString entry(psz);
    LibString kept;
    bool removed = false;
    while (Length() > 0) {
        LibString token;
        NextToken(token, cSeparator);
        if (token == entry) {
            removed = true;
            continue;
        }
        kept += token;
        kept += ',';
    }
    kept.RemoveLastChar(',');
    *this = kept;
    return removed;
}

bool LibString::HasListEntry(const char* psz, char cSeparator) const
{
    LibString rest(m_psz);
    while (rest.Length() > 0) {
        LibString token;
        rest.NextToken(token, cSeparator);
        if (token == psz) {
            return true;
        }
    }
    return false;
}

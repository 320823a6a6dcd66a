#include "lib/platform/LibSupWin32.h"

#include "lib/files/TextLines.h"
#include "lib/text/Assertion.h"

char* ReadDataLine(char* psz, std::FILE* pf)
{
    constexpr int kLineSize = 256;
    LIB_ASSERT(psz);
    LIB_ASSERT(pf);
    while (ReadTextLine(psz, kLineSize, pf) != nullptr) {
        StripComment(psz);
        char* const content = psz + (SkipBlanks(psz) - psz);
        if (*content != 0) {
            return content;
        }
    }
    return nullptr;
}

const char* NextTextLine(char* target, const char* text, std::size_t limit)
{
    constexpr std::size_t kLongestLine = 65535;
    if (*text == 0 || limit < 2) {
        if (limit > 0) {
            *target = 0;
        }
        return nullptr;
    }
    std::size_t n = 0;
    const char* p = text;
    for (; *p != 0 && *p != '\n' && n + 1 < limit; ++p) {
        if (p + 1 == text + kLongestLine) {
            *target = 0;
            return nullptr;
        }
        if (*p != '\r') {
            target[n++] = *p;
        }
    }
    target[n] = 0;
    return *p == '\n' ? p + 1 : p;
}

bool GetField(int index, char separator, LibString& target, const char* text)
{
    const LibString all(text);
    long from = 0;
    for (int i = 0; i < index; ++i) {
        const long at = all.Find(separator, from);
        if (at < 0) {
            from = -1;
            break;
        }
        from = at + 1;
    }
    target.Empty();
    if (index < 0 || from < 0) {
        return false;
    }
    target = all.Mid(from);
    target.CutAt(separator);
    return true;
}

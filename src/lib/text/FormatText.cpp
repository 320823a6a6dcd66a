#include "lib/text/FormatText.h"

#include "lib/text/LibString.h"

#include <cstdarg>

std::string FormatText(const char* pszFormat, ...)
{
    LibString text;
    std::va_list args;
    va_start(args, pszFormat);
    text.FormatList(pszFormat, args);
    va_end(args);
    return text.GetText();
}

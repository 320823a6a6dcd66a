#include "lib/platform/LibSup.h"

#include "lib/files/TextLines.h"
#include "lib/platform/LibApp.h"
#include "lib/text/Assertion.h"
#include "lib/text/Numbers.h"

#include <cstdio>

void ShowError(const char* psz)
{
    CurrentDesktop().ShowBox(g_pszAppName != nullptr ? g_pszAppName : "Error", psz, true);
}

int ReportError(int nCode)
{
    LibString text;
    std::FILE* const file = std::fopen("C:\\ErrMsg.txt", "rb");
    if (file == nullptr) {
        text.Format("Fehler %d ist aufgetreten (ErrMsg.txt fehlt)!", nCode);
        ShowError(text);
        return nCode;
    }
    text.Format("Fehler %d ist aufgetreten (Eintrag fehlt in ErrMsg.txt)!", nCode);
    char szLine[256];
    while (ReadTextLine(szLine, sizeof szLine, file) != nullptr) {
        if (IntegerValue(szLine) == nCode) {
            LibString line(szLine);
            line.CutAt('\n');
            text.Format("Fehler %s", line.GetText());
            break;
        }
    }
    std::fclose(file);
    ShowError(text);
    return nCode;
}

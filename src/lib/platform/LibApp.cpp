#include "lib/platform/LibApp.h"

#include "lib/platform/LibSup.h"
#include "lib/text/LibString.h"

#include <cstdlib>
#include <initializer_list>

const char* g_pszAppName = nullptr;
const char* g_pszAppDir = nullptr;
const char* g_pszLogPath = nullptr;
int g_nAppValues[2] = {};

namespace {

/// Puts a copy of `psz` in the place of what `target` held.
void Store(const char*& target, const char* psz)
{
    char* const copy = psz != nullptr ? CheckedStrdup(psz) : nullptr;
    std::free(const_cast<char*>(target));
    target = copy;
}

} // namespace

void LibAppInit(const char* pszArgv0, const char* pszName, int nFirst, int nSecond)
{
    LibString directory(pszArgv0);
    if (directory.Find('/') < 0) {
        directory.Empty();
    }
    PathStripName(&directory);
    Store(g_pszAppName, pszName);
    Store(g_pszAppDir, pszArgv0 != nullptr ? directory.GetText() : nullptr);
    Store(g_pszLogPath, "/tmp/varnholt.unknown.log");
    g_nAppValues[0] = nFirst;
    g_nAppValues[1] = nSecond;
}

void LibAppExit(int nStatus)
{
    for (const char** const text : {&g_pszAppName, &g_pszAppDir, &g_pszLogPath}) {
        Store(*text, nullptr);
    }
    std::exit(nStatus);
}

#include "lib/config/SupportValues.h"

#include "lib/config/LibConfig.h"
#include "lib/platform/LibSup.h"
#include "lib/text/CharTools.h"

#include <cstring>

const char* GetSupportValue(const char* pszSection, const char* pszKey, const char* pszDefault)
{
    static char szValue[128];
    LibString value;
    CPlainConfigFile(g_szIniName).GetString(pszSection, pszKey, value, pszDefault);
    return std::strcpy(szValue, value.Left(sizeof szValue - 1));
}

int SetSupportValue(const char* pszSection, const char* pszKey, const char* pszValue)
{
    CPlainConfigFile file(g_szIniName);
    const LibString value(pszValue);
    if (IsBlank(value[0]) || IsBlank(value.LastChar()) || value[0] == '"') {
        return file.SetValue(pszSection, pszKey, '"' + value + '"');
    }
    return file.SetValue(pszSection, pszKey, pszValue);
}

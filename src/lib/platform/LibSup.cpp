#include "lib/platform/LibSup.h"

#include <cstdio>
#include <cstring>
#include <filesystem>

void* g_hInstance = nullptr;
void* g_hPrevInstance = nullptr;
int g_nSupFlag = 0;
char g_szIniName[256] = "SUPPORT.INI";
char g_szLogName[256] = "APP.LOG";
char g_szModuleName[128] = "SUPPORT";
char g_szProgramDir[256] = "";

int LibSupInit(const char* pszName, void* hInstance, void* hPrevInstance, const char* pszLogDir, int nFlag)
{
    constexpr std::size_t kNameSize = 128;
    if (std::strlen(pszName) >= kNameSize || std::strlen(pszLogDir) >= kNameSize) {
        return 1;
    }
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    const LibString module(program.stem().c_str());
    LibString directory(program.c_str());
    PathStripName(&directory);
    const LibString ini = directory + "SUPPORT.INI";
    LibString log;
    log.Format("%s%s.LOG", pszLogDir, pszName);
    if (error || module.Length() >= sizeof g_szModuleName || ini.Length() >= sizeof g_szIniName ||
        log.Length() >= sizeof g_szLogName) {
        return 1;
    }
    g_hInstance = hInstance;
    g_hPrevInstance = hPrevInstance;
    g_nSupFlag = nFlag;
    std::strcpy(g_szModuleName, module);
    std::strcpy(g_szProgramDir, directory);
    std::strcpy(g_szIniName, ini);
    std::strcpy(g_szLogName, log);
    return 0;
}

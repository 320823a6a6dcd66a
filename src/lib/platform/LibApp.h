#pragma once

/// Who the application is. Null until LibAppInit.
extern const char* g_pszAppName; ///< its name
extern const char* g_pszAppDir;  ///< its directory with the slash, empty if it was called by name alone
extern const char* g_pszLogPath; ///< path of a log file
extern int g_nAppValues[2];      ///< two numbers that go with the identity

/// Stores the identity; a null text stays null. Calling it again replaces what was stored.
void LibAppInit(const char* pszArgv0, const char* pszName, int nFirst, int nSecond);

/// Frees the identity and ends the program.
[[noreturn]] void LibAppExit(int nStatus);

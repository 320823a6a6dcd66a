#pragma once

#include "lib/text/LibString.h"

#include <cstddef>
#include <cstdint>

// Identity and settings

extern void* g_hInstance;
extern void* g_hPrevInstance;
extern int g_nSupFlag;           ///< what LibSupInit was given along
extern char g_szIniName[256];    ///< file of the support settings
extern char g_szLogName[256];    ///< name of the log file
extern char g_szModuleName[128]; ///< the program's base name: its file's, without directory and extension
extern char g_szProgramDir[256]; ///< directory of the program with its slash; empty until LibSupInit

/// Stores the identity: the settings are SUPPORT.INI beside the program, the log file `pszLogDir` and
/// `pszName` and ".LOG"; the module's name is that of the program's own file, whatever `pszName` is. 0; 1,
/// with nothing stored, if a text is longer than 127 characters, a name made of them does not fit, or the
/// program's own path cannot be told.
int LibSupInit(const char* pszName, void* hInstance, void* hPrevInstance, const char* pszLogDir, int nFlag);

// Log reports

/// Logs "Mark (%ld): %s" with the milliseconds since the last mark, 0 at the first. The time spent in logging
/// is not counted.
void LogMark(const char* psz);

/// What the system tells of its memory, in bytes but for the first.
struct MemoryFigures {
    std::uint64_t percentInUse = 0;
    std::uint64_t physical = 0;
    std::uint64_t freePhysical = 0;
    std::uint64_t paging = 0;
    std::uint64_t freePaging = 0;
    std::uint64_t addressSpace = 0;
    std::uint64_t freeAddressSpace = 0;
};
/// The running system's figures; 0 for one that it does not tell.
MemoryFigures ReadMemoryFigures();
/// Logs seven lines. Kept: all are shifted right by 10, the percentage too, and the texts say bytes.
void LogMemory(const MemoryFigures& figures);
void LogMemory();

// Paths, in the form c:\a\b.txt

/// Joins the parts that are not null or empty: "drive:", "directory\", "name", ".extension".
void PathBuild(LibString& target, const char* pszDrive, const char* pszDirectory, const char* pszName,
               const char* pszExtension);
/// Splits a path; each target may be null, and all are emptied first. The directory comes without slashes at
/// its ends. False for an empty or null path and one of 2048 characters or more.
bool PathSplit(const char* pszPath, LibString* drive, LibString* directory, LibString* name,
               LibString* extension);
/// Pointer behind the last `.`, to the end of the text if there is none.
const char* PathExtension(const char* psz);
/// Removes the extension with its `.`, unless the name would become empty. A dot of a directory begins none.
void PathStripExtension(LibString* text);
/// True if the extension is that one, without regard to case.
bool PathHasExtension(const char* psz, const char* pszExtension);
/// Appends `\` unless the text ends with one; gives the text, null for null.
LibString* PathAddSlash(LibString* text);
/// Cuts everything behind the last `/`; a text without one stays. 1 for null, otherwise 0.
int PathStripName(LibString* text);

// Memory: as the standard library's, but they give no null pointer and take none to free; a request for
// nothing gives one byte. What fails is an assertion of the library.

void* CheckedMalloc(std::size_t nSize);
void* CheckedCalloc(std::size_t nCount, std::size_t nSize);
void* CheckedRealloc(void* p, std::size_t nSize);
char* CheckedStrdup(const char* psz);
void CheckedFree(void* p);

// Errors

/// Shows a text with the stop icon under the application's name ("Error" while there is none).
void ShowError(const char* psz);
/// Shows the line of C:\ErrMsg.txt that begins with the code, or says that there is none; gives the code.
int ReportError(int nCode);

// Programs

/// Claims a shared object of 32 bytes of that name, for this user, until the program ends. Its handle, or
/// null if another holds it or it cannot be made, as for a null name.
void* AlreadyRunning(const char* pszName);
/// Starts a program by its command line, words split by blanks, double quotes keeping them together, and does
/// not wait for it. 0, or 62 if it cannot be started, as for a null pointer.
int RunProgram(const char* pszCommandLine);
/// Opens a file with the program that the desktop has for it. 0; 27 for a null path, 1 for a missing file, 62
/// if it cannot be started. `hParent` is the window that asks, null for none.
int OpenDocument(void* hParent, const char* pszPath);
/// True if the system tells the user's name, or fails to for any reason but that it cannot at all.
bool IsUserLoggedIn();
/// The same for what the look-up of the name gave: 0 or the system's error.
bool IsUserLoggedIn(int nError);

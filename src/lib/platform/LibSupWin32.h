#pragma once

#include "lib/text/CharTools.h"
#include "lib/text/LibString.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>

/// The toolbox between the library and the operating system, on POSIX. Left out, for want of a counterpart
/// here: reading a value of the registry, and the names of Windows in the version text.

// Reading

/// Reads lines of at most 255 characters into `psz`, which has room for 256, until one has content before its
/// comment. Pointer to that content, null at the end of the file.
char* ReadDataLine(char* psz, std::FILE* pf);
/// Copies a line out of `text`, without its CRs, until an LF or until `limit` - 1 characters are copied.
/// Pointer to what follows; null, with `target` empty, at the end of the text, for a line of 65535 characters
/// or more, and for a limit that holds no character (below 1, `target` is not touched).
const char* NextTextLine(char* target, const char* text, std::size_t limit);
/// Copies a field of a separated text, counted from 0; false, with `target` empty, if there is none.
bool GetField(int index, char separator, LibString& target, const char* text);

// Directories

/// Makes a directory, and those above it that are missing. 0 if it stands there, otherwise 1, told through
/// ShowError. For a path that cannot be one it shows "ERROR_BAD_PATHNAME: %s" and throws ErrCode::Unknown.
int MakeDirectory(const char* pszPath);
/// Removes all that stands below a directory, but for entries whose names begin with `.` and the directories
/// that hold one. The directory itself stays. Links are removed and never followed, a link as the path
/// neither. 0, or 1 if something could not be removed.
int RemoveTree(const char* pszPath);
/// An entry met while walking a directory.
struct FindData {
    LibString name;
    bool directory = false; ///< a link is none, wherever it leads
};
/// True for a directory whose name does not begin with `.`.
bool IsDirectory(const FindData& data);

/// The folders that GetSpecialFolder knows by number.
enum SpecialFolder {
    kFolderHome,
    kFolderDesktop,
    kFolderDocuments,
    kFolderDownload,
    kFolderMusic,
    kFolderPictures,
    kFolderVideos,
    kFolderTemplates,
    kFolderPublic,
    kFolderConfig,
    kFolderData,
    kFolderCache,
    kFolderTemporary,
    kSpecialFolderCount
};
/// The path of a special folder as the XDG directories name it; false, with `target` empty, for an unknown
/// number and for a user without a home.
bool GetSpecialFolder(LibString& target, int id);
/// Lets a folder be chosen on the desktop; false for none. `hParent` is the window that asks, null for none.
bool BrowseFolder(void* hParent, LibString& target, const char* pszRoot);

// Text, beside SkipSource, which is the evaluator's too

inline const char* SkipSpace(const char* p) { return SkipBlanks(p); }
inline const char* SkipSpaceAll(const char* p) { return SkipAll(p); }
inline char* TrimEnd(char* psz) { return TrimRight(psz); }
inline bool IsSpace(char c) { return IsBlank(c); }
inline const char* FindIn(const char* what, const char* text) { return FindText(what, text); }
inline const char* FindInNoCase(const char* what, const char* text) { return FindTextNoCase(what, text); }
/// Compares 129 bytes at the most.
inline bool SameText128(const char* a, const char* b) { return std::strncmp(a, b, 129) == 0; }

/// Ends a line at its first `#`, CR or LF, quoted or not, and cuts trailing blanks and tabs.
void CutComment(char* pszLine);
/// Appends to `p1`, which has room for `limit` characters with its zero byte, as much of `p2` as fits.
void AppendLimited(char* p1, const char* p2, std::size_t limit);
/// Fills a text with `c` up to a length, at its left; a longer one stays.
void PadText(LibString& text, int length, char c);
/// The same at its right.
void PadRight(LibString& text, int length, char c);
/// Replaces each occurrence of `pszWas` by `pszMit` and gives the new length. The result has 2047 characters
/// at the most, and is cut there; a text without a hit stays whole. An empty `pszWas` occurs nowhere.
int Replace(LibString* pszSource, const char* pszWas, const char* pszMit);
/// The same, where `pszWas` is sought through FoldUpper.
int ReplaceNoCase(LibString* pszSource, const char* pszWas, const char* pszMit);
/// The text without blanks and tabs at its ends; of one that begins with `"`, what stands up to the next.
LibString UnquoteField(const char* psz);
/// Folds a text in place through FoldLower or FoldUpper, and gives it.
char* ToLower(char* psz);
char* ToUpper(char* psz);

// Tables

/// A row of a table that ends with a null text.
struct TextCode {
    const char* text;
    int code;
};
/// The code of a text, 0 if it is not in the table. A null text or table has no code.
int FindCode(const TextCode* table, const char* psz);
/// The text of a code, null if it is not in the table; null for a null table.
const char* FindName(const TextCode* table, int code);

// System

/// A stop watch over counts of milliseconds that leaves out its pauses.
class PauseWatch {
public:
    /// Begins or ends a pause at the count `now`; true if it is paused then.
    bool Pause(bool bPause, std::uint32_t now);
    /// The count without the pauses. During a pause it stands still.
    std::uint32_t Count(std::uint32_t now) const;
    /// True if the count exceeds `t`, or is below 15000: the system has just started, or the count began
    /// anew.
    bool HasElapsed(std::uint32_t t, std::uint32_t now) const;

private:
    bool m_bPaused = false;
    std::uint32_t m_nPausedAt = 0;
    std::uint32_t m_nPauses = 0;
};
/// The same on one watch of the program, on TickCount.
bool PauseClock(bool bPause);
bool ElapsedSince(std::uint32_t t);

/// 1 if the process has the administrator's rights: root, or a member of root's group or of "sudo" or
/// "wheel". 1 as well if its groups cannot be read.
int IsAdministrator();
/// The account name of the process. 0; 1 if there is none or it does not fit `size`, with `target` empty.
int GetUserAccount(char* target, std::size_t size);
/// "%s Version %lu.%lu Build %lu %s" with the system's name, the three numbers of its release, and what
/// follows them. 0; 1 if the system does not tell, which is said on the standard output.
int GetOsVersionText(LibString& target);
/// The same for a name and a release, such as "Linux" and "6.1.0-18-amd64".
void FormatOsVersion(LibString& target, const char* pszSystem, const char* pszRelease);
/// Shows the system's text for the last error in a box titled "Error".
void ShowLastError();
/// Writes a desktop entry at `pszLink` that starts the program `pszTarget`. 0; 1 if a step failed, which is
/// told through ShowError. The path of the entry has 260 characters at the most.
int CreateShortcut(const char* pszTarget, const char* pszLink, const char* pszDescription);

#pragma once

#include <cstdint>

/// Helpers on plain texts of code page 1252. None of them looks at the locale. Helpers that take a `char*`
/// work in place and never make the text longer; `AddWord` alone needs room and is told how much there is.

constexpr bool IsBlank(char c) { return c == ' ' || c == '\t'; }
constexpr bool IsBlankOrLineEnd(char c) { return IsBlank(c) || c == '\r' || c == '\n'; }
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
/// `A` to `Z` as small letters, any other byte as it is.
constexpr char ToPlainLower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Pointer past blanks and tabs.
const char* SkipBlanks(const char* p);
/// Pointer past blanks, tabs and line ends.
const char* SkipAll(const char* p);

/// Pointer past bytes from 1 to 32, `//` comments that end before a CR or LF, and `/* */` comments. An open
/// comment ends with the text; `pbOpen`, if not null, tells whether there was one.
const char* SkipSource(const char* psz, bool* pbOpen = nullptr);

/// Cuts blanks and tabs at the end; gives the text.
char* TrimRight(char* psz);
/// Cuts blanks, tabs and line ends at the end; gives the text.
char* TrimRightAll(char* psz);
/// Cuts blanks, tabs and line ends at the end and gives a pointer past those at the start.
char* TrimAll(char* psz);

/// Ends a line at its first CR or LF.
void CutLineEnd(char* pszLine);
/// Ends a line at its first CR, LF, or `#` outside double quotes, and cuts trailing blanks and tabs. The
/// line, or null, with nothing cut, if no such character stood there.
char* StripComment(char* pszLine);

/// `p` if all of `prefix` matches, else null. An empty prefix matches.
const char* StartsWith(const char* prefix, const char* p);
/// The same through FoldUpper on both sides.
const char* StartsWithNoCase(const char* prefix, const char* p);

/// Where `what` first stands in `text`, null for nowhere.
const char* FindText(const char* what, const char* text);
/// The same through FoldUpper on both sides.
const char* FindTextNoCase(const char* what, const char* text);

/// 0 to 15 for a hexadecimal digit of either case, otherwise -1.
int HexDigitValue(char c);
/// Reads hexadecimal digits up to the first other character; of more than eight the last eight count.
std::int32_t HexToLong(const char* psz);

/// Upper case for mixed German text of code pages 1252 and 437/850: `a` to `z` become capitals, an umlaut of
/// either page becomes the OEM capital; control bytes and all other bytes from 128 up become `_`.
char FoldUpper(char c);
/// The same, but the OEM capitals 0x8E, 0x99 and 0x9A become `_`.
char FoldUpperSmall(char c);
/// Lower case in the same way: `A` to `Z` become small, an umlaut the small OEM letter; an OEM capital
/// becomes `_`.
char FoldLower(char c);
/// `a` to `z`, `A` to `Z`, and the German letters of both pages but for the OEM capitals.
bool IsLetter(char c);

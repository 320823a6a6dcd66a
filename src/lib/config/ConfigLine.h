#pragma once

/// How a line of a configuration file is read, for the reader and the writer alike.

/// A key line is read up to here.
inline constexpr int kLongestKeyLine = 2039;
/// What stands for the doubles that have no digits.
inline constexpr const char* kNoValueText = "NAN";
inline constexpr const char* kMinusInfinity = "-inf";

/// True for the line that begins a section, whichever.
bool IsSectionLine(const char* pszLine);
/// True for the header of the section.
bool IsSectionHeader(const char* pszLine, const char* pszSection);
/// The value behind the key of that name, without comment, line end and blanks behind it, or null if the line
/// is not that key's. `pszLine` is cut at its comment.
char* MatchKey(char* pszLine, const char* pszName);
/// The same where `#` begins no comment.
char* MatchPlainKey(char* pszLine, const char* pszName);

#pragma once

/// Helpers on plain texts of code page 1252. None of them looks at the locale.

constexpr bool IsBlank(char c) { return c == ' ' || c == '\t'; }
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// Pointer past blanks and tabs.
const char* SkipBlanks(const char* p);

/// `p` if all of `prefix` matches, else null. An empty prefix matches.
const char* StartsWith(const char* prefix, const char* p);
/// The same through FoldUpper on both sides.
const char* StartsWithNoCase(const char* prefix, const char* p);

/// Upper case for mixed German text of code pages 1252 and 437/850: `a` to `z` become capitals, an umlaut of
/// either page becomes the OEM capital; control bytes and all other bytes from 128 up become `_`.
char FoldUpper(char c);

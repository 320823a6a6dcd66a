#pragma once

// The settings of the support library, in the file that LibSupInit names.

/// A setting of `g_szIniName`, at most 127 characters of it, in a static buffer that the next call fills
/// anew; `pszDefault` (null for the empty text) if it is not there, as for a null key. The file is plain:
/// what stands behind the `=` is the value, `#` and all, without blanks and one pair of quotes at its ends.
const char* GetSupportValue(const char* pszSection, const char* pszKey, const char* pszDefault);
/// Writes a setting, or removes it for a null value. Any text of one line comes back as it was: blanks at its
/// ends and a quote at its start are put in quotes. 0, or a code of CConfigFile, with the file as it was: 71
/// for a line end or a text beyond a line, 74 for a null key.
int SetSupportValue(const char* pszSection, const char* pszKey, const char* pszValue);

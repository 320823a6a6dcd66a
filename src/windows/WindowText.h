#pragma once

#include "lib/text/Language.h"
#include "painting/QtText.h"

/// A text of a window in the program's language.
inline QString Shown(const Bilingual& text) { return ToQString(text.In(g_nLanguage)); }

/// What a window says of a picture or table that could not be written.
inline constexpr Bilingual kNotWritten{"The file cannot be written.",
                                       "Die Datei kann nicht geschrieben werden."};

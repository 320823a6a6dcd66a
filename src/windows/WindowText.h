#pragma once

#include "lib/text/Language.h"
#include "painting/QtText.h"

/// A text of a window in the program's language.
inline QString Shown(const Bilingual& text) { return ToQString(text.In(g_nLanguage)); }

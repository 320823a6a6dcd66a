#include "lib/text/Language.h"

int g_nLanguage = kEnglish;

#include "lib/Language.h"

int g_nLanguage = kEnglish;

#pragma once

#include "lib/text/Language.h"

/// Why a file could not be read or written, in plain words that end a sentence ("the disk is full"), for a
/// code of the system (`errno`). An unknown code has a text, too.
Bilingual FileReason(int error);

#pragma once

#include "cli/words/ProgramWords.h"

#include <string>

/// The program's page for man, section 1, in UTF-8; `version` is that of the program.
std::string ManPage(const ProgramWords& program, std::string_view version, int language);

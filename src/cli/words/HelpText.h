#pragma once

#include "cli/words/ProgramWords.h"

#include <string>

/// What `--help` prints: UTF-8, lines of up to 80 characters.
std::string HelpText(const ProgramWords& program, int language);

/// What `--version` prints, with the program's name.
std::string VersionText(const ProgramWords& program, std::string_view version);

/// The language of a terminal whose user has chosen none: that of the first of the variables LC_ALL,
/// LC_MESSAGES and LANG that is not empty.
int TerminalLanguage();

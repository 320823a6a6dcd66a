#pragma once

#include "cli/words/ProgramWords.h"

#include <string>

/// What the shells need to complete the words of the program: scripts for bash and zsh.
std::string BashCompletion(const ProgramWords& program);
std::string ZshCompletion(const ProgramWords& program);

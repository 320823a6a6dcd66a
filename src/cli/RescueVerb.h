#pragma once

#include "lib/text/Table.h"

#include <string>

// The copies that the workbench keeps of designs left unsaved. Each gives the exit status; `output` is the
// path of the file to write, empty for standard output.

/// The list, newest first and numbered from 1.
int ListRescueCopies(TableFormat format, const std::string& output);

/// The bytes of the copy of a number of that list. A word that is no number ends the program.
int WriteRescueCopy(const std::string& number, const std::string& output);

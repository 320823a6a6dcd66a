#pragma once

#include "cli/CommandLine.h"
#include "cli/Telescope.h"
#include "lib/text/Table.h"
#include "model/analysis/Values.h"

#include <optional>
#include <string>

// What the verbs share. Each understands all of its words before it reads or writes anything. --------------

/// A document on the terminal, and the current one.
struct TerminalDocument {
    TerminalHost host;
    COrrevaDoc document{host};

    TerminalDocument() { g_pCurrentDocument = &document; }
};

/// Recalculates once more, so that no first reading shows, and gives the design whose numbers are read then.
DesignState DesignOf(COrrevaDoc& document);

/// The value of a name that an option gives; an unknown one ends the program.
const DesignValue& ValueOf(const std::string& option, const std::string& name);

/// Where the words want the output; empty for standard output.
std::string OutputPath(const CommandLine& words);

/// The file among the plain words from `first` on, if there is one; a second one is a word too many.
std::optional<std::string> FileWord(const CommandLine& words, std::size_t first);

/// The form of a table that the words ask for.
TableFormat FormatOf(const CommandLine& words);

#pragma once

#include <string>
#include <string_view>

class COrrevaDoc;

// The bodies of the verbs that exchange files. Each gives the exit status; `output` is the path of the file
// to write, empty for standard output. Messages reach the user through the document's host.

/// Reads a file of the old format as the menu command does, then writes the design file.
int ImportVerb(COrrevaDoc& document, const std::string& old_file, const std::string& output);

/// One of the exports, by its word on the command line.
struct ExportForm {
    std::string_view word;
    int (*run)(COrrevaDoc& document, const std::string& output);
};

/// The export of a word ("oslo", "fta"), null if there is none. It writes the file that its command writes.
const ExportForm* FindExport(std::string_view word);

#pragma once

#include "drawing/paper/Paper.h"

#include <string>

struct CommandLine;

/// Whether a path asks for a PDF file.
bool IsPaperFile(const std::string& path);

/// The paper that the words ask for; A4 without any.
const PaperSize& PaperOf(const CommandLine& words);

/// Writes the pages as a PDF file, whole or not at all. The exit status.
int WritePaper(const std::string& path, const PaperDocument& document);

#pragma once

#include "lib/text/LibString.h"

/// The single sink of all logging. There are no levels, and nothing writes a log file.
void LogText(LibString text);

/// Copies the text and calls LogText; 0.
int LogLine(const LibString& text);

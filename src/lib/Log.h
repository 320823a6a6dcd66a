#pragma once

#include "lib/LibString.h"

/// Takes one line of development text, without its line end.
using LogSink = void (*)(const char* psz);

/// Where LogText sends its lines; a null pointer silences it. At the start: standard error in a debug build,
/// nothing in a release build. Gives back the sink that was set before.
LogSink SetLogSink(LogSink sink);

/// The single sink of all logging. There are no levels, and nothing writes a log file.
void LogText(LibString text);

/// Copies the text and calls LogText; 0.
int LogLine(const LibString& text);

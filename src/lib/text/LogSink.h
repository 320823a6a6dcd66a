#pragma once

/// Takes one line of development text, without its line end.
using LogSink = void (*)(const char* psz);

/// Where the log goes; a null pointer silences it. At the start: standard error in a debug build, nothing in
/// a release build. Gives back the sink that was set before.
LogSink SetLogSink(LogSink sink);

/// Whether anybody takes lines: a text that nobody takes need not be made.
bool HasLogSink();

/// Hands a line to the sink. LogText in Log.h is what the program calls; this is for the parts on which its
/// string class rests.
void SinkLine(const char* psz);

#include "lib/text/Log.h"

#include "lib/text/LogSink.h"

void LogText(LibString text) { SinkLine(text.GetText()); }

int LogLine(const LibString& text)
{
    LogText(text);
    return 0;
}

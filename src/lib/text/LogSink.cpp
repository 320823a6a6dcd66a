#include "lib/text/LogSink.h"

#include <cstdio>

namespace {

#ifdef NDEBUG
constexpr LogSink kStandardSink = nullptr;
#else
void WriteToStandardError(const char* psz) { std::fprintf(stderr, "%s\n", psz); }
constexpr LogSink kStandardSink = WriteToStandardError;
#endif

LogSink g_sink = kStandardSink;

} // namespace

LogSink SetLogSink(LogSink sink)
{
    const LogSink before = g_sink;
    g_sink = sink;
    return before;
}

bool HasLogSink() { return g_sink != nullptr; }

void SinkLine(const char* psz)
{
    if (g_sink != nullptr) {
        g_sink(psz);
    }
}

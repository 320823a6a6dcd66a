#include "lib/text/Assertion.h"

#include "lib/text/LogSink.h"

#include <cstdio>
#include <cstdlib>
#include <string>

void* g_hMainWnd = nullptr;

namespace {

class NoDesktop : public AssertDesktop {
public:
    AssertAnswer AskAssert(const char*, const char* text) override
    {
        std::fprintf(stderr, "%s\n", text);
        return AssertAnswer::Abort;
    }
    void CloseMainWindow() override {}
    void BreakIntoDebugger() override {}
    void FatalAppExit(const char* text) override
    {
        std::fprintf(stderr, "%s\n", text);
        std::exit(1);
    }
};

NoDesktop g_noDesktop;
AssertDesktop* g_desktop = nullptr;

} // namespace

AssertDesktop* SetAssertDesktop(AssertDesktop* desktop)
{
    AssertDesktop* const before = g_desktop;
    g_desktop = desktop;
    return before;
}

AssertDesktop& CurrentDesktop() { return g_desktop != nullptr ? *g_desktop : g_noDesktop; }

void AssertDesktop::ShowBox(const char* title, const char* text, bool)
{
    std::fprintf(stderr, "%s: %s\n", title, text);
}

bool AssertDesktop::ChooseFolder(const char*, const char*, LibString&) { return false; }

void AssertFail(const char* expr, const char* file, int line, const char* msg)
{
    char text[256];
    if (msg == nullptr) {
        std::snprintf(text, sizeof text, "Assert(%s);\nFile %s, line %d.", expr, file, line);
    } else {
        std::snprintf(text, sizeof text, "AssertMessage(%s);\nFile %s, line %d.\n *** %s ***", expr, file,
                      line, msg);
    }
    SinkLine((std::string(text) + "\n").c_str());

    AssertDesktop& desktop = CurrentDesktop();
    switch (desktop.AskAssert("Assert", text)) {
    case AssertAnswer::Abort:
        desktop.CloseMainWindow();
        desktop.FatalAppExit("Application terminated");
        break;
    case AssertAnswer::Retry:
        desktop.BreakIntoDebugger();
        break;
    case AssertAnswer::Ignore:
        break;
    }
}

void LibAssertFail(const char* expr, const char* file, int line)
{
    const std::string path(file);
    const std::string module = path.substr(0, path.rfind('.'));
    const std::string text =
        "Assertation (" + std::string(expr) + ") failed File " + module + " Line " + std::to_string(line);
    SinkLine(text.c_str());
    std::exit(1);
}

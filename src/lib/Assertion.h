#pragma once

/// The main window for message boxes. Nothing sets it: it stays null, and a box gets the active window.
extern void* g_hMainWnd;

enum class AssertAnswer { Abort, Retry, Ignore };

/// What the interactive assertion asks of its desktop.
class AssertDesktop {
public:
    virtual ~AssertDesktop() = default;
    /// Shows `text` under `title` with the stop icon and the buttons Abort, Retry and Ignore.
    virtual AssertAnswer AskAssert(const char* title, const char* text) = 0;
    /// Asks the main window to close.
    virtual void CloseMainWindow() = 0;
    /// Stops in the debugger.
    virtual void BreakIntoDebugger() = 0;
    /// Ends the program with `text` as its last word.
    virtual void FatalAppExit(const char* text) = 0;
};

/// The desktop that AssertFail speaks to, null for none; gives back the one before. Without a desktop an
/// assertion is logged, told on standard error and ends the program.
AssertDesktop* SetAssertDesktop(AssertDesktop* desktop);

/// The interactive assertion of the application: logs, asks, and aborts, breaks or goes on.
void AssertFail(const char* expr, const char* file, int line, const char* msg);

/// The assertion of the support library: logs "Assertation (%s) failed File %s Line %d" and exits with 1.
/// `file` is the module's source path; it is told without its extension.
[[noreturn]] void LibAssertFail(const char* expr, const char* file, int line);

#define ORREVA_ASSERT(expression, source)                                                                    \
    ((expression) ? static_cast<void>(0) : AssertFail(#expression, source, __LINE__, nullptr))
#define LIB_ASSERT(expression)                                                                               \
    ((expression) ? static_cast<void>(0) : LibAssertFail(#expression, __FILE__, __LINE__))

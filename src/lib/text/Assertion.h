#pragma once

/// The main window for message boxes. Nothing sets it: it stays null, and a box gets the active window.
extern void* g_hMainWnd;

class LibString;

enum class AssertAnswer { Abort, Retry, Ignore };

/// What the library asks of its desktop: the interactive assertion, and boxes that only tell. What a desktop
/// does not answer itself goes to standard error.
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
    /// Shows `text` under `title` with one button, and the stop icon for `bStop`.
    virtual void ShowBox(const char* title, const char* text, bool bStop);
    /// Lets a folder below `root` (null for any) be chosen in a window of that title; false for none chosen.
    virtual bool ChooseFolder(const char* title, const char* root, LibString& target);
};

/// The desktop that the library speaks to, null for none; gives back the one before. Without a desktop an
/// assertion is logged, told on standard error and ends the program.
AssertDesktop* SetAssertDesktop(AssertDesktop* desktop);
/// The desktop that was set, or the one that speaks on standard error.
AssertDesktop& CurrentDesktop();

/// The interactive assertion of the application: logs, asks, and aborts, breaks or goes on.
void AssertFail(const char* expr, const char* file, int line, const char* msg);

/// The assertion of the support library: logs "Assertation (%s) failed File %s Line %d" and exits with 1.
/// `file` is the module's source path; it is told without its extension.
[[noreturn]] void LibAssertFail(const char* expr, const char* file, int line);

#define ORREVA_ASSERT(expression, source)                                                                    \
    ((expression) ? static_cast<void>(0) : AssertFail(#expression, source, __LINE__, nullptr))
#define LIB_ASSERT(expression)                                                                               \
    ((expression) ? static_cast<void>(0) : LibAssertFail(#expression, __FILE__, __LINE__))

#pragma once

#include "lib/text/Assertion.h"
#include "lib/text/LibString.h"

#include <string>
#include <vector>

/// Stands where the desktop would, and writes down what it is asked.
class DesktopRecorder : public AssertDesktop {
public:
    DesktopRecorder() : m_before(SetAssertDesktop(this)) {}
    DesktopRecorder(const DesktopRecorder&) = delete;
    DesktopRecorder& operator=(const DesktopRecorder&) = delete;
    ~DesktopRecorder() override { SetAssertDesktop(m_before); }

    AssertAnswer AskAssert(const char* title, const char* text) override
    {
        calls.push_back(std::string(title) + ": " + text);
        return answer;
    }
    void CloseMainWindow() override { calls.push_back("close"); }
    void BreakIntoDebugger() override { calls.push_back("break"); }
    void FatalAppExit(const char* text) override { calls.push_back(std::string("exit: ") + text); }
    void ShowBox(const char* title, const char* text, bool bStop) override
    {
        calls.push_back(std::string(bStop ? "stop " : "box ") + title + ": " + text);
    }
    bool ChooseFolder(const char* title, const char* root, LibString& target) override
    {
        calls.push_back(std::string("choose ") + title + ": " + (root != nullptr ? root : "anywhere"));
        target = folder.c_str();
        return !folder.empty();
    }

    std::string folder; ///< what is chosen, empty for nothing
    AssertAnswer answer = AssertAnswer::Ignore;
    std::vector<std::string> calls;

private:
    AssertDesktop* m_before;
};

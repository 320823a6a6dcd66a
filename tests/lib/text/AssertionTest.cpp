#include "lib/text/Assertion.h"

#include "support/DesktopRecorder.h"
#include "support/LogRecorder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

using Calls = std::vector<std::string>;

void LogToStandardError()
{
    SetLogSink([](const char* psz) { std::fprintf(stderr, "<%s>", psz); });
}

TEST(Assertion, TheMainWindowForBoxesStartsAtNull) { EXPECT_EQ(nullptr, g_hMainWnd); }

TEST(Assertion, IgnoreGoesOn)
{
    const LogRecorder log;
    DesktopRecorder desktop;
    AssertFail("a == b", "src/a.cpp", 12, nullptr);
    EXPECT_EQ(Calls{"Assert: Assert(a == b);\nFile src/a.cpp, line 12."}, desktop.calls);
    EXPECT_EQ(Calls{"Assert(a == b);\nFile src/a.cpp, line 12.\n"}, log.Lines());
}

TEST(Assertion, AMessageStandsBelowTheExpression)
{
    const LogRecorder log;
    DesktopRecorder desktop;
    AssertFail("n", "x.cpp", 7, "no zones");
    EXPECT_EQ(Calls{"Assert: AssertMessage(n);\nFile x.cpp, line 7.\n *** no zones ***"}, desktop.calls);
    EXPECT_EQ(Calls{"AssertMessage(n);\nFile x.cpp, line 7.\n *** no zones ***\n"}, log.Lines());
}

TEST(Assertion, RetryBreaksIntoTheDebugger)
{
    const LogRecorder log;
    DesktopRecorder desktop;
    desktop.answer = AssertAnswer::Retry;
    AssertFail("n", "x.cpp", 7, nullptr);
    EXPECT_EQ((Calls{"Assert: Assert(n);\nFile x.cpp, line 7.", "break"}), desktop.calls);
}

TEST(Assertion, AbortClosesTheMainWindowAndThenEndsTheProgram)
{
    const LogRecorder log;
    DesktopRecorder desktop;
    desktop.answer = AssertAnswer::Abort;
    AssertFail("n", "x.cpp", 7, nullptr);
    EXPECT_EQ((Calls{"Assert: Assert(n);\nFile x.cpp, line 7.", "close", "exit: Application terminated"}),
              desktop.calls);
}

TEST(Assertion, ATextTooLongIsCutAt255Characters)
{
    const LogRecorder log;
    DesktopRecorder desktop;
    AssertFail(std::string(1000, 'e').c_str(), "x.cpp", 7, nullptr);
    ASSERT_EQ(1u, desktop.calls.size());
    EXPECT_EQ("Assert: Assert(" + std::string(255 - 7, 'e'), desktop.calls[0]);
}

TEST(Assertion, TheMacroAsksOnlyWhenItsExpressionFails)
{
    const LogRecorder log;
    DesktopRecorder desktop;
    ORREVA_ASSERT(1 + 1 == 2, "x.cpp");
    EXPECT_EQ(Calls{}, desktop.calls);
    ORREVA_ASSERT(1 + 1 == 3, "x.cpp");
    const std::string line = std::to_string(__LINE__ - 1);
    EXPECT_EQ(Calls{"Assert: Assert(1 + 1 == 3);\nFile x.cpp, line " + line + "."}, desktop.calls);
}

TEST(AssertionDeathTest, WithoutADesktopItIsToldAndEndsTheProgram)
{
    EXPECT_EXIT(
        {
            SetAssertDesktop(nullptr);
            AssertFail("n > 0", "x.cpp", 7, nullptr);
        },
        testing::ExitedWithCode(1), "Assert\\(n > 0\\);\nFile x.cpp, line 7.\nApplication terminated");
}

TEST(AssertionDeathTest, TheLibrarysOwnLogsAndExitsWithOne)
{
    EXPECT_EXIT(
        {
            LogToStandardError();
            LibAssertFail("px", "z:\\src\\lib\\free_LibConfig", 33);
        },
        testing::ExitedWithCode(1),
        "<Assertation \\(px\\) failed File z:\\\\src\\\\lib\\\\free_LibConfig Line 33>");
}

TEST(AssertionDeathTest, TheLibrarysOwnNamesItsModuleWithoutTheExtension)
{
    int n = 0;
    LIB_ASSERT(n == 0);
    EXPECT_EXIT(
        {
            LogToStandardError();
            LIB_ASSERT(n == 1);
        },
        testing::ExitedWithCode(1),
        "<Assertation \\(n == 1\\) failed File [^ ]*tests/lib/text/AssertionTest Line [0-9]+>");
}

} // namespace

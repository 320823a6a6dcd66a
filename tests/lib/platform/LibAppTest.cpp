#include "lib/platform/LibApp.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

TEST(LibApp, KnowsNothingBeforeItIsTold)
{
    EXPECT_EQ(nullptr, g_pszAppName);
    EXPECT_EQ(nullptr, g_pszAppDir);
    EXPECT_EQ(nullptr, g_pszLogPath);
}

// What is stored holds for the whole process, so it is told in a child.

[[noreturn]] void TellAfterInit(const char* argv0, const char* name)
{
    LibAppInit("/first/program", "First", 1, 2);
    LibAppInit(argv0, name, 3, 4);
    std::fprintf(stderr, "<%s><%s><%s><%d %d>", g_pszAppName != nullptr ? g_pszAppName : "null",
                 g_pszAppDir != nullptr ? g_pszAppDir : "null", g_pszLogPath, g_nAppValues[0],
                 g_nAppValues[1]);
    LibAppExit(0);
}

TEST(LibAppDeathTest, StoresTheIdentity)
{
    const char* const log = "</tmp/varnholt.unknown.log><3 4>";
    EXPECT_EXIT(TellAfterInit("/usr/bin/orreva", "Orreva"), testing::ExitedWithCode(0),
                std::string("<Orreva></usr/bin/>") + log);
    EXPECT_EXIT(TellAfterInit("./orreva", "Orreva"), testing::ExitedWithCode(0),
                std::string("<Orreva><\\./>") + log);
    EXPECT_EXIT(TellAfterInit("orreva", ""), testing::ExitedWithCode(0), std::string("<><>") + log);
    EXPECT_EXIT(TellAfterInit(nullptr, nullptr), testing::ExitedWithCode(0),
                std::string("<null><null>") + log);
}

TEST(LibAppDeathTest, ExitFreesTheIdentityAndEndsWithTheStatus)
{
    EXPECT_EXIT(
        {
            LibAppInit("/usr/bin/orreva", "Orreva", 0, 0);
            std::atexit([] {
                const bool freed =
                    g_pszAppName == nullptr && g_pszAppDir == nullptr && g_pszLogPath == nullptr;
                std::fputs(freed ? "freed" : "held", stderr);
            });
            LibAppExit(3);
        },
        testing::ExitedWithCode(3), "freed");
}

} // namespace

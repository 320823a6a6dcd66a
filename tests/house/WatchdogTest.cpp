#include "support/Watchdog.h"

#include "support/Environment.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace {

TEST(Watchdog, EndsAHangingTestWithItsNameAndItsCalls)
{
    EXPECT_EXIT(
        {
            alarm(1); // the same alarm, sooner
            for (volatile bool ends = false; !ends;) {
            }
        },
        testing::KilledBySignal(SIGABRT),
        "Watchdog.EndsAHangingTestWithItsNameAndItsCalls hangs\\. After [0-9]+ seconds it was here:"
        "(.|\n)*orreva_core_tests\\(");
}

/// Not a test of its own: the next one runs it.
TEST(Watchdog, DISABLED_EndsTheProgram) { std::exit(0); }

TEST(Watchdog, ATestThatEndsTheProgramHasFailed)
{
    const std::string command = std::filesystem::read_symlink("/proc/self/exe").string() +
                                " --gtest_also_run_disabled_tests"
                                " --gtest_filter=Watchdog.DISABLED_EndsTheProgram >/dev/null 2>said";
    const TemporaryFolder folder;
    const int status = std::system(command.c_str());
    EXPECT_EQ(1, WEXITSTATUS(status));
    EXPECT_NE(std::string::npos,
              folder.Read("said").find("Watchdog.DISABLED_EndsTheProgram ended the program."));
}

TEST(Watchdog, WaitsWhileATestRuns)
{
    const unsigned left = alarm(0);
    EXPECT_LT(0u, left);
    EXPECT_GE(TestLimit(), left);
    alarm(left);
}

TEST(Watchdog, HasItsLimitFromTheEnvironment)
{
    {
        const Environment given("ORREVA_TEST_LIMIT", "7");
        EXPECT_EQ(7u, TestLimit());
    }
    for (const char* const none : {"", "soon", "-3", "0"}) {
        const Environment odd("ORREVA_TEST_LIMIT", none);
        EXPECT_EQ(100u, TestLimit()) << none;
    }
    const Environment unset("ORREVA_TEST_LIMIT", nullptr);
    EXPECT_EQ(100u, TestLimit()) << "below the 120 of the runner";
}

} // namespace

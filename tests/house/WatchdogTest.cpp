#include "support/Watchdog.h"

#include "support/Environment.h"

#include <gtest/gtest.h>

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

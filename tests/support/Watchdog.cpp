#include "support/Watchdog.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <execinfo.h>
#include <unistd.h>

namespace {

/// The runner ends a test after 120 seconds without telling where it was.
constexpr unsigned kLimit = 100;

// What the signal tells, made before it comes: nothing may be allocated then.
char g_szWord[512];

void Tell(int)
{
    void* calls[64];
    const int count = backtrace(calls, static_cast<int>(std::size(calls)));
    // There is nobody to tell of a failed write.
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, g_szWord, std::strlen(g_szWord));
    backtrace_symbols_fd(calls, count, STDERR_FILENO);
    std::abort();
}

/// Tests of what ends a program run it in a process of its own.
const pid_t g_ownProcess = getpid();

class Watchdog : public testing::EmptyTestEventListener {
public:
    void OnTestStart(const testing::TestInfo& test) override
    {
        const unsigned seconds = TestLimit();
        std::snprintf(g_szWord, sizeof g_szWord, "\n%s.%s hangs. After %u seconds it was here:\n",
                      test.test_suite_name(), test.name(), seconds);
        void* none[1];
        backtrace(none, 1); // loads what it needs now and not in the signal
        std::signal(SIGALRM, Tell);
        alarm(seconds);
    }
    void OnTestEnd(const testing::TestInfo&) override { alarm(0); }
};

/// A program under test that calls exit would pass: the runner sees its status alone.
void TellEarlyEnd()
{
    const testing::TestInfo* const test = testing::UnitTest::GetInstance()->current_test_info();
    if (test != nullptr && getpid() == g_ownProcess) {
        std::fprintf(stderr, "\n%s.%s ended the program.\n", test->test_suite_name(), test->name());
        _exit(1);
    }
}

// Linked in is switched on, whatever main function the test program has.
[[maybe_unused]] const bool g_bListening = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new Watchdog);
    std::atexit(TellEarlyEnd);
    return true;
}();

} // namespace

unsigned TestLimit()
{
    const char* const text = std::getenv("ORREVA_TEST_LIMIT");
    const int seconds = text != nullptr ? std::atoi(text) : 0;
    return seconds > 0 ? static_cast<unsigned>(seconds) : kLimit;
}

// The companion without memory: each allocation of a run fails in turn. It prints what it always prints, or
// one line and the status 1; it does not hang, and no half of a file stays.

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include <sys/wait.h>

#ifdef ORREVA_CLI

namespace {

/// A run in a folder of its own, with one allocation that fails (0: none).
class Companion {
public:
    explicit Companion(const std::string& words) : m_words(words) {}

    int With(int allocation) const
    {
        const std::string command = "timeout 20 env ORREVA_FAIL_AT=" + std::to_string(allocation) +
                                    " ORREVA_FAIL_COUNT=count LD_PRELOAD=" ORREVA_FAILING_MEMORY
                                    " " ORREVA_CLI " " +
                                    m_words + " -o out 2> words";
        std::filesystem::remove("out");
        const int status = std::system(command.c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    int Allocations() const { return std::atoi(m_folder.Read("count").c_str()); }
    std::string Output() const { return m_folder.Read("out"); }
    std::string Words() const { return m_folder.Read("words"); }
    /// Whether anything stands there but the three files of a run.
    bool LeftSomething() const
    {
        return m_folder.Count() != 2 + static_cast<int>(std::filesystem::exists("out"));
    }

private:
    TemporaryFolder m_folder;
    std::string m_words;
};

class CompanionWithoutMemory : public testing::TestWithParam<const char*> {};

TEST_P(CompanionWithoutMemory, SaysSoInOneLine)
{
    Companion run(GetParam());
    ASSERT_EQ(0, run.With(0)) << run.Words();
    const std::string whole = run.Output();
    const int allocations = run.Allocations();
    ASSERT_GT(allocations, 20) << "they are counted";

    constexpr int kRuns = 120;
    int failed = 0;
    for (int allocation = 1; allocation <= allocations; allocation += std::max(1, allocations / kRuns)) {
        SCOPED_TRACE(allocation);
        const int status = run.With(allocation);
        if (status == 0) {
            EXPECT_EQ(whole, run.Output());
            EXPECT_EQ("", run.Words());
        } else {
            EXPECT_EQ(1, status);
            EXPECT_EQ("orreva-cli: not enough memory\n", run.Words());
            EXPECT_FALSE(std::filesystem::exists("out"));
            ++failed;
        }
        EXPECT_FALSE(run.LeftSomething());
    }
    EXPECT_GT(failed, 20);
}

INSTANTIATE_TEST_SUITE_P(Verbs, CompanionWithoutMemory,
                         testing::Values("sweep --jobs 3 --vary mirror/focal_length=800:2000:9000",
                                         "sweep --jobs 1 --vary mirror/focal_length=800:2000:50", "report",
                                         "save --title new", "values",
                                         "rays --mode focal --pointer 700,200"));

} // namespace

#endif

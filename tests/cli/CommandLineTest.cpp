#include "cli/CommandLine.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

/// The line of a reader's fault, empty for none.
std::string Fault(const std::function<void()>& read)
{
    try {
        read();
        return {};
    } catch (const UsageFault& fault) {
        return fault.line;
    }
}

TEST(CommandLineWords, AreAVerbOptionsAndTheRest)
{
    const CommandLine words = ParseCommandLine(
        {"--details", "report", "a.orreva.xml", "--page", "star", "--page", "marks", "--", "--page"});
    EXPECT_EQ(kReport, words.verb);
    EXPECT_EQ((std::vector<std::string>{"a.orreva.xml", "--page"}), words.plain);
    EXPECT_TRUE(words.Has("--details"));
    EXPECT_FALSE(words.Has("--zones"));
    EXPECT_EQ((std::vector<std::string>{"star", "marks"}), words.Values("--page"));
    EXPECT_EQ("marks", words.Value("--page"));
    EXPECT_EQ(std::nullopt, words.Value("--zones"));
}

TEST(CommandLineWords, NameTheOneAtFault)
{
    const struct {
        std::vector<std::string> words;
        const char* fault;
    } cases[] = {
        {{}, "orreva-cli: a verb is missing; see --help"},
        {{"print"}, "orreva-cli: unknown verb print"},
        {{"report", "--zoom", "2"}, "orreva-cli: unknown option --zoom"},
        {{"draw", "--zoom"}, "orreva-cli: a value is missing behind --zoom"},
        {{"save", "-o", ""}, "orreva-cli: a file name is missing behind -o"},
        {{"two\r\nlines"}, "orreva-cli: unknown verb two  lines"},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(one.fault, Fault([&] { ParseCommandLine(one.words); }));
    }
    EXPECT_EQ("", Fault([] { ParseCommandLine({"--help"}); })) << "needs no verb";
    EXPECT_EQ("", Fault([] { ParseCommandLine({"calc", "-3"}); })) << "an expression";
}

TEST(CommandLineNumbers, AreUnderstoodWholeAndBetweenTheirEnds)
{
    EXPECT_EQ(1, WholeNumber("--zoom", "1", 1, 5));
    EXPECT_EQ(5, WholeNumber("--zoom", "5", 1, 5));
    EXPECT_EQ(-3, WholeNumber("--value", "-3", -3, 3));
    for (const char* const odd : {"0", "6", "", " 1", "1 ", "1.0", "+1", "one", "99999999999"}) {
        EXPECT_EQ(std::string("orreva-cli: --zoom does not take ") + odd,
                  Fault([&] { WholeNumber("--zoom", odd, 1, 5); }));
    }
    EXPECT_EQ(std::pair(1.5, -2000.0), NumberPair("--pointer", "1.5,-2e3"));
    for (const char* const odd :
         {"", "1", ",", "1,", ",1", "1,2,3", "1;2", "nan,1", "1,inf", "1e999,1", "1, 2"}) {
        EXPECT_EQ(std::string("orreva-cli: --pointer does not take ") + odd,
                  Fault([&] { NumberPair("--pointer", odd); }));
    }
    EXPECT_EQ(std::pair(640, 480), WholePair("--size", "640x480", 'x', 1, 640));
    for (const char* const odd : {"641x1", "1x641", "0x1", "1x0"}) {
        EXPECT_NE("", Fault([&] { WholePair("--size", odd, 'x', 1, 640); })) << odd;
    }
    EXPECT_EQ("orreva-cli: --size does not take 640", Fault([] { WholePair("--size", "640", 'x', 1, 640); }));
    EXPECT_EQ(1u, ChoiceOf("--language", "de", {"en", "de"}));
    EXPECT_EQ("orreva-cli: --language does not take fr", Fault([] {
                  ChoiceOf("--language", "fr", {"en", "de"});
              }));
}

} // namespace

#include "lib/text/LibString.h"

#include <gtest/gtest.h>

#include <cctype>
#include <random>
#include <string>

namespace {

struct FindCase {
    const char* text;
    const char* what;
    long from;
    bool matchCase;
    long expected;
};

TEST(LibStringFind, GivesTheFirstPlaceAtOrBehindTheStart)
{
    const FindCase cases[] = {
        {"abcabc", "bc", 0, true, 1},
        {"abcabc", "bc", 1, true, 1},
        {"abcabc", "bc", 2, true, 4},
        {"abcabc", "bc", 5, true, -1},
        {"abcabc", "bc", -2, true, 4},
        {"abcabc", "bc", -1, true, -1},
        {"abcabc", "bc", -6, true, 1},
        {"abcabc", "bc", -100, true, 1},
        {"abcabc", "bc", 100, true, -1},
        {"abcabc", "BC", 0, true, -1},
        {"abcabc", "BC", 0, false, 1},
        {"ABCABC", "bc", 2, false, 4},
        {"\xC4", "\xE4", 0, false, -1},
        {"abc", "abcd", 0, true, -1},
        {"abc", "abc", 0, true, 0},
        {"", "a", 0, true, -1},
        {"", "", 0, true, 0},
        {"abc", "", 1, true, 1},
        {"abc", "", 3, true, 3},
        {"abc", "", 4, true, -1},
        {"abc", nullptr, 0, true, -1},
        // The same sum, another order: the sum alone is no hit.
        {"bacab", "ab", 0, true, 3},
        {"adbcab", "ab", 0, true, 4},
    };
    for (const FindCase& c : cases) {
        EXPECT_EQ(c.expected, LibString(c.text).Find(c.what, c.from, c.matchCase))
            << c.text << '|' << (c.what != nullptr ? c.what : "null") << '|' << c.from;
    }
}

TEST(LibStringFind, ReverseGivesTheLastPlaceAtOrBeforeTheStart)
{
    const FindCase cases[] = {
        {"abcabc", "bc", -1, true, 4},  {"abcabc", "bc", 4, true, 4},   {"abcabc", "bc", 3, true, 1},
        {"abcabc", "bc", 0, true, -1},  {"abcabc", "ab", 0, true, 0},   {"abcabc", "bc", 100, true, 4},
        {"abcabc", "bc", -3, true, 1},  {"abcabc", "bc", -6, true, -1}, {"abcabc", "bc", -7, true, -1},
        {"abcabc", "BC", -1, true, -1}, {"abcabc", "BC", -1, false, 4}, {"abc", "abcd", -1, true, -1},
        {"abc", "abc", -1, true, 0},    {"", "a", -1, true, -1},        {"abc", "", 1, true, 1},
        {"abc", "", 9, true, 3},        {"abc", nullptr, -1, true, -1}, {"abba", "ab", -1, true, 0},
    };
    for (const FindCase& c : cases) {
        EXPECT_EQ(c.expected, LibString(c.text).ReverseFind(c.what, c.from, c.matchCase))
            << c.text << '|' << (c.what != nullptr ? c.what : "null") << '|' << c.from;
    }
}

TEST(LibStringFind, FindsCharacters)
{
    const LibString text("a.b.C");
    EXPECT_EQ(1, text.Find('.'));
    EXPECT_EQ(3, text.Find('.', 2));
    EXPECT_EQ(3, text.Find('.', -2));
    EXPECT_EQ(-1, text.Find('c'));
    EXPECT_EQ(4, text.Find('c', 0, false));
    EXPECT_EQ(-1, text.Find('\0'));
    EXPECT_EQ(3, text.ReverseFind('.'));
    EXPECT_EQ(1, text.ReverseFind('.', 2));
    EXPECT_EQ(1, text.ReverseFind('.', -3));
    EXPECT_EQ(-1, text.ReverseFind('A'));
    EXPECT_EQ(0, text.ReverseFind('A', -1, false));
    EXPECT_EQ(-1, text.ReverseFind('\0'));
    EXPECT_EQ(2, text.CountChar('.'));
    EXPECT_EQ(0, text.CountChar('x'));
    EXPECT_EQ(0, text.CountChar('\0'));
}

std::string Lower(std::string text)
{
    for (char& c : text) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return text;
}

TEST(LibStringFind, AgreesWithADirectSearch)
{
    std::mt19937 random(7);
    const auto text = [&random](std::size_t longest) {
        std::string made(random() % (longest + 1), ' ');
        for (char& c : made) {
            c = "abABc\xE4"[random() % 6];
        }
        return made;
    };
    for (int i = 0; i < 20000; ++i) {
        const std::string in = text(20);
        const std::string what = text(3);
        const long from = static_cast<long>(random() % 21);
        const auto signedPlace = [](std::size_t place) {
            return place == std::string::npos ? -1L : static_cast<long>(place);
        };
        const auto start = static_cast<std::size_t>(from);
        const LibString string(in.c_str());
        ASSERT_EQ(signedPlace(in.find(what, start)), string.Find(what.c_str(), from)) << in << '|' << what;
        ASSERT_EQ(signedPlace(in.rfind(what, start)), string.ReverseFind(what.c_str(), from))
            << in << '|' << what;
        ASSERT_EQ(signedPlace(Lower(in).find(Lower(what), start)), string.Find(what.c_str(), from, false))
            << in << '|' << what;
        ASSERT_EQ(signedPlace(Lower(in).rfind(Lower(what), start)),
                  string.ReverseFind(what.c_str(), from, false))
            << in << '|' << what;
    }
}

} // namespace

#include "lib/CharTools.h"

#include "lib/CodePage.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(CharTools, BlanksAreBlankAndTabAlone)
{
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(byte == ' ' || byte == '\t', IsBlank(static_cast<char>(byte))) << byte;
    }
}

TEST(CharTools, DigitsAreZeroToNine)
{
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(byte >= '0' && byte <= '9', IsDigit(static_cast<char>(byte))) << byte;
    }
}

TEST(CharTools, SkipBlanksStopsAtTheFirstOtherByte)
{
    EXPECT_STREQ("a b", SkipBlanks(" \t a b"));
    EXPECT_STREQ("\n a", SkipBlanks("  \n a"));
    EXPECT_STREQ("", SkipBlanks("  "));
    EXPECT_STREQ("", SkipBlanks(""));
}

struct PrefixCase {
    const char* prefix;
    const char* text;
    bool withCase;
    bool withoutCase;
};

class StartsWithTest : public testing::TestWithParam<PrefixCase> {};

TEST_P(StartsWithTest, GivesTheTextItselfOrNull)
{
    const PrefixCase& c = GetParam();
    EXPECT_EQ(c.withCase ? c.text : nullptr, StartsWith(c.prefix, c.text)) << c.prefix << '|' << c.text;
    EXPECT_EQ(c.withoutCase ? c.text : nullptr, StartsWithNoCase(c.prefix, c.text))
        << c.prefix << '|' << c.text;
}

INSTANTIATE_TEST_SUITE_P(
    CharTools, StartsWithTest,
    testing::Values(PrefixCase{"", "", true, true}, PrefixCase{"", "abc", true, true},
                    PrefixCase{"ab", "abc", true, true}, PrefixCase{"abc", "abc", true, true},
                    PrefixCase{"AB", "abc", false, true}, PrefixCase{"abcd", "abc", false, false},
                    PrefixCase{"b", "abc", false, false}, PrefixCase{"a", "", false, false},
                    PrefixCase{"März"_cp1252, "MÄRZEN"_cp1252, false, true},
                    PrefixCase{"M\x84rz", "MÄRZEN"_cp1252, false, true},
                    // The end of the text is no underscore, though a control byte folds to one.
                    PrefixCase{"a_", "a", false, false}, PrefixCase{"a_", "a\x01", false, true},
                    PrefixCase{"a_b",
                               "a\xE9"
                               "b",
                               false, true}));

TEST(CharTools, FoldUpperOfEveryByte)
{
    for (int byte = 0; byte < 256; ++byte) {
        int expected = '_';
        if (byte >= 'a' && byte <= 'z') {
            expected = byte - 32;
        } else if (byte >= 32 && byte < 128) {
            expected = byte;
        } else if (byte == 0x81 || byte == 0x9A || byte == 0xDC || byte == 0xFC) {
            expected = 0x9A;
        } else if (byte == 0x84 || byte == 0x8E || byte == 0xC4 || byte == 0xE4) {
            expected = 0x8E;
        } else if (byte == 0x94 || byte == 0x99 || byte == 0xD6 || byte == 0xF6) {
            expected = 0x99;
        } else if (byte == 0xDF || byte == 0xE1) {
            expected = 0xE1;
        }
        EXPECT_EQ(expected, static_cast<unsigned char>(FoldUpper(static_cast<char>(byte)))) << byte;
    }
}

} // namespace

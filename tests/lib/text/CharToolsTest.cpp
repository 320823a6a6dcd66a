#include "lib/text/CharTools.h"

#include "lib/text/CodePage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
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

unsigned char Byte(char c) { return static_cast<unsigned char>(c); }

TEST(CharTools, FoldUpperSmallKnowsNoOemCapitals)
{
    for (int byte = 0; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        const bool oemCapital = byte == 0x9A || byte == 0x8E || byte == 0x99;
        EXPECT_EQ(oemCapital ? '_' : FoldUpper(c), FoldUpperSmall(c)) << byte;
    }
}

TEST(CharTools, FoldLowerOfEveryByte)
{
    for (int byte = 0; byte < 256; ++byte) {
        int expected = '_';
        if (byte >= 'A' && byte <= 'Z') {
            expected = byte + 32;
        } else if (byte >= 32 && byte < 128) {
            expected = byte;
        } else if (byte == 0x81 || byte == 0xDC || byte == 0xFC) {
            expected = 0x81;
        } else if (byte == 0x84 || byte == 0xC4 || byte == 0xE4) {
            expected = 0x84;
        } else if (byte == 0x94 || byte == 0xD6 || byte == 0xF6) {
            expected = 0x94;
        } else if (byte == 0xDF || byte == 0xE1) {
            expected = 0xE1;
        }
        EXPECT_EQ(expected, Byte(FoldLower(static_cast<char>(byte)))) << byte;
    }
}

TEST(CharTools, LettersAreThePlainOnesAndTheGermanButForTheOemCapitals)
{
    const std::string letters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                "\x81\xDC\xFC\x84\xC4\xE4\x94\xD6\xF6\xDF\xE1";
    for (int byte = 0; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        EXPECT_EQ(letters.find(c) != std::string::npos, IsLetter(c)) << byte;
    }
}

TEST(CharTools, SkipAllPassesLineEndsToo)
{
    EXPECT_STREQ("a \n", SkipAll(" \r\n\t a \n"));
    EXPECT_STREQ("\v", SkipAll("\v"));
    EXPECT_STREQ("", SkipAll("\n"));
}

TEST(CharTools, TrimsInPlace)
{
    char blanks[] = " a \n\t ";
    EXPECT_EQ(blanks, TrimRight(blanks));
    EXPECT_STREQ(" a \n", blanks);
    EXPECT_EQ(blanks, TrimRightAll(blanks));
    EXPECT_STREQ(" a", blanks);
    char all[] = "\r\n a b \n";
    EXPECT_STREQ("a b", TrimAll(all));
    char nothing[] = "\r\n \t";
    EXPECT_STREQ("", TrimAll(nothing));
    EXPECT_STREQ("", TrimRight(nothing));
}

struct CommentCase {
    const char* line;
    bool found;
    const char* expected;
};

TEST(CharTools, StripsACommentOutsideQuotes)
{
    const CommentCase cases[] = {
        {"a # b", true, "a"},
        {"a \t\n", true, "a"},
        {"a\r\n", true, "a"},
        {"# all", true, ""},
        {"\"a # b\" # c", true, "\"a # b\""},
        {"a \"#\" b", false, "a \"#\" b"},
        {"a \"#\n b", true, "a \"#"},
        {"a\nb # c", true, "a"},
        {"a  ", false, "a  "},
        {"", false, ""},
    };
    for (const CommentCase& c : cases) {
        char line[32];
        std::strcpy(line, c.line);
        EXPECT_EQ(c.found ? line : nullptr, StripComment(line)) << c.line;
        EXPECT_STREQ(c.expected, line) << c.line;
    }
}

struct SearchCase {
    const char* what;
    const char* text;
    int place;
    int placeNoCase;
};

TEST(CharTools, FindsATextWithinAText)
{
    const SearchCase cases[] = {
        {"b", "abc", 1, 1},   {"B", "abc", -1, 1}, {"abc", "ab", -1, -1}, {"", "abc", 0, 0},
        {"", "", 0, 0},       {"a", "", -1, -1},   {"aab", "aaab", 1, 1}, {"\xE4", "ab\xC4", -1, 2},
        {"c_", "abc", -1, -1}};
    for (const SearchCase& c : cases) {
        const char* const found = FindText(c.what, c.text);
        const char* const foundNoCase = FindTextNoCase(c.what, c.text);
        EXPECT_EQ(c.place, found != nullptr ? found - c.text : -1) << c.what << '|' << c.text;
        EXPECT_EQ(c.placeNoCase, foundNoCase != nullptr ? foundNoCase - c.text : -1)
            << c.what << '|' << c.text;
    }
}

TEST(CharTools, HexDigitsHaveAValue)
{
    const std::string digits = "0123456789abcdef";
    const std::string capitals = "0123456789ABCDEF";
    for (int byte = 0; byte < 256; ++byte) {
        const char c = static_cast<char>(byte);
        const std::size_t place = std::min(digits.find(c), capitals.find(c));
        EXPECT_EQ(place != std::string::npos ? static_cast<int>(place) : -1, HexDigitValue(c)) << byte;
    }
}

TEST(CharTools, ReadsAHexNumberUpToTheFirstOtherCharacter)
{
    EXPECT_EQ(0, HexToLong(""));
    EXPECT_EQ(0, HexToLong("x1"));
    EXPECT_EQ(0, HexToLong("0x1F"));
    EXPECT_EQ(31, HexToLong("1F"));
    EXPECT_EQ(31, HexToLong("1f mm"));
    EXPECT_EQ(2147483647, HexToLong("7FFFFFFF"));
    EXPECT_EQ(-1, HexToLong("ffffffff"));
    EXPECT_EQ(0x23456789, HexToLong("123456789"));
}

} // namespace

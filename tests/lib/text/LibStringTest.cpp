#include "lib/text/LibString.h"

#include "lib/text/FormatSize.h"
#include "lib/text/LogSink.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace {

FormatSize Counted(const char* pszFormat, ...)
{
    std::va_list args;
    va_start(args, pszFormat);
    FormatSize size = CountFormat(pszFormat, args);
    va_end(args);
    return size;
}

/// Formats that a compiler would warn of, from a place where it does not look.
template <typename... Arguments>
std::string Formatted(const char* pszFormat, Arguments... arguments)
{
    LibString text;
    text.Format(pszFormat, arguments...);
    return text.GetText();
}

TEST(LibString, StartsEmpty)
{
    const LibString text;
    EXPECT_STREQ("", text.GetText());
    EXPECT_EQ(0u, text.Length());
}

TEST(LibString, CopiesWhatItIsMadeFrom)
{
    std::string source = "abc";
    const LibString text(source.c_str());
    source[0] = 'x';
    EXPECT_STREQ("abc", text);
    const LibString copy(text);
    EXPECT_STREQ("abc", copy);
    EXPECT_NE(text.GetText(), copy.GetText());
    EXPECT_STREQ("c", LibString('c'));
    EXPECT_STREQ("", LibString('\0'));
    EXPECT_STREQ("", LibString(static_cast<const char*>(nullptr)));
}

TEST(LibString, AssignsTextAndString)
{
    LibString text("a");
    text = "second";
    EXPECT_STREQ("second", text);
    const LibString other("third");
    text = other;
    EXPECT_STREQ("third", text);
    text.Assign("fourth");
    EXPECT_STREQ("fourth", text);
    text.Assign(nullptr);
    EXPECT_STREQ("", text);
    text.Assign("a");
    text.Empty();
    EXPECT_EQ(0u, text.Length());
}

TEST(LibString, AssignsAPartOfItself)
{
    LibString text("one, two");
    text = text.GetText() + 5;
    EXPECT_STREQ("two", text);
    const LibString& same = text;
    text = same;
    EXPECT_STREQ("two", text);
}

TEST(LibString, AFreedStringTakesANewText)
{
    LibString text("abc");
    text.Free();
    EXPECT_EQ(nullptr, text.GetText());
    text.Free();
    text = "again";
    EXPECT_STREQ("again", text);
}

TEST(LibString, KnowsItsBytes)
{
    const LibString text("a\xE4z");
    EXPECT_EQ(3u, text.Length());
    EXPECT_EQ('a', text.At(0));
    EXPECT_EQ('\xE4', text[1]);
    EXPECT_EQ('z', text[2L]);
    EXPECT_EQ(0, text.At(-1));
    EXPECT_EQ(0, text.At(static_cast<long>(text.Length())));
    EXPECT_EQ(0, text.At(1000000));
    EXPECT_EQ(0, text[-1]);
    EXPECT_EQ(0, LibString().At(0));
}

TEST(LibString, TrimsBlanksAndTabsAtBothEnds)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", ""}, {"a", "a"}, {" \t a b \t ", "a b"}, {"  ", ""}, {"\na \r", "\na \r"}, {"a  ", "a"}};
    for (const auto& [given, trimmed] : cases) {
        LibString text(given);
        text.TrimBlanks();
        EXPECT_STREQ(trimmed, text);
    }
}

TEST(LibString, TrimAtTheLeftMovesOnlyTheView)
{
    LibString text("  ab ");
    const char* const block = text.GetText();
    text.TrimBlanks();
    EXPECT_EQ(block + 2, text.GetText());
}

struct CountCase {
    const char* format;
    std::size_t bytes; ///< behind the closing zero byte
};

TEST(LibStringFormat, CountsEachNumberByItsLetterAndWidth)
{
    const CountCase integers[] = {
        {"", 0},      {"abc", 3},   {"%%", 1},     {"a%%b", 3}, {"%d", 33},     {"%i", 33},   {"%o", 33},
        {"%u", 33},   {"%x", 33},   {"%X", 33},    {"%5d", 33}, {"%32d", 33},   {"%33d", 34}, {"%100d", 101},
        {"%-d", 34},  {"%+d", 34},  {"% d", 34},   {"%#x", 35}, {"%-+ #d", 38}, {"%05d", 33}, {"%.50d", 33},
        {"%hd", 33},  {"%hhd", 33}, {"n: %d", 36}, {"%c", 3},   {"%C", 3},      {"%1c", 3},   {"%9c", 11},
        {"%-9c", 11}, {"%5%", 6},   {"%-5%", 7},   {"%n", 1},   {"%r", 1},      {"%-5n", 2},
    };
    for (const CountCase& c : integers) {
        const FormatSize size = Counted(c.format, 1);
        EXPECT_EQ(c.bytes + 1, size.bytes) << c.format;
        EXPECT_FALSE(size.bad) << c.format;
    }
    EXPECT_EQ(1u + 33, Counted("%ld", 1L).bytes);
    EXPECT_EQ(1u + 41, Counted("%40lu", 1UL).bytes);
    EXPECT_EQ(1u + 33, Counted("%p", static_cast<void*>(nullptr)).bytes);
    EXPECT_EQ(1u + 51, Counted("%50p", static_cast<void*>(nullptr)).bytes);
}

TEST(LibStringFormat, CountsADoubleAsAtLeast317)
{
    const CountCase doubles[] = {{"%f", 318},    {"%e", 318},      {"%E", 318},    {"%g", 318},
                                 {"%G", 318},    {"%5.2f", 320},   {"%.20f", 338}, {"%317f", 318},
                                 {"%318f", 319}, {"%400.3f", 404}, {"%+.1f", 320}, {"%lf", 318},
                                 {"%a", 33},     {"%40a", 41}};
    for (const CountCase& c : doubles) {
        EXPECT_EQ(c.bytes + 1, Counted(c.format, 1.0).bytes) << c.format;
    }
}

TEST(LibStringFormat, CountsATextByItsLength)
{
    EXPECT_EQ(1u + 1 + 3, Counted("%s", "abc").bytes);
    EXPECT_EQ(1u + 1 + 10, Counted("%10s", "abc").bytes);
    EXPECT_EQ(1u + 1 + 3, Counted("%2s", "abc").bytes);
    EXPECT_EQ(1u + 1 + 5, Counted("%.2s", "abc").bytes);
    EXPECT_EQ(1u + 1 + 1, Counted("%s", "").bytes);
    EXPECT_EQ(1u + 2 + 4, Counted("%-4s", "").bytes);
    EXPECT_EQ(1u + 1 + 6, Counted("%s", static_cast<const char*>(nullptr)).bytes);
    EXPECT_EQ(1u + 1 + 6, Counted("%8.9s", static_cast<const char*>(nullptr)).bytes);
}

TEST(LibStringFormat, PrintsWithTheCountedSize)
{
    EXPECT_EQ("3 items", Formatted("%d items", 3));
    EXPECT_EQ(" 1.00", Formatted("%5.2f", 1.0));
    EXPECT_EQ("", Formatted(""));
    EXPECT_EQ("100%", Formatted("%d%%", 100));
    const char* volatile none = nullptr; // hidden from the compiler's own check
    const char* const null = none;
    EXPECT_EQ("a|  b|c  |(null)", Formatted("%c|%3s|%-3s|%s", 'a', "b", "c", null));
    EXPECT_EQ("-5 7 ff FF 0xff 17", Formatted("%ld %lu %x %X %#x %o", -5L, 7UL, 255, 255, 255, 15));
    EXPECT_EQ("6.2 6.8", Formatted("%0.1f %0.1f", 6.25, 6.75)) << "ties as the C library rounds them";
    EXPECT_EQ("inf -inf", Formatted("%f %f", HUGE_VAL, -HUGE_VAL));
    EXPECT_EQ("1", Formatted("%hd", 65537));
}

TEST(LibStringFormat, HoldsTheLongestNumbers)
{
    EXPECT_EQ(309u + 7, Formatted("%f", 1.7976931348623157e308).size());
    EXPECT_EQ(310u + 7, Formatted("%f", -1.7976931348623157e308).size());
    EXPECT_EQ(310u + 1 + 100, Formatted("%.100f", -1.7976931348623157e308).size());
    EXPECT_EQ(std::string(100000, 's'), Formatted("%s", std::string(100000, 's').c_str()));
    EXPECT_EQ("-2147483648", Formatted("%d", std::int32_t{-2147483647 - 1}));
    EXPECT_EQ(std::string(499, ' ') + "1", Formatted("%500d", 1));
}

TEST(LibStringFormat, ACapitalCharacterIsAByteLikeTheSmallOne)
{
    EXPECT_EQ("A\xE4", Formatted("%C%C", 'A', 0xE4));
    EXPECT_EQ("\xE4  |", Formatted("%-3c|", 0xE4));
}

TEST(LibStringFormat, SizeModifiersDoNotReachCharactersAndTexts)
{
    const char* const text = "\xE4z";
    EXPECT_EQ("\xE4z|\xE4z|\xE4z", Formatted("%ls|%hs|%lls", text, text, text));
    EXPECT_EQ("   \xE4z|\xE4  |", Formatted("%5ls|%-3.1hs|", text, text));
    EXPECT_EQ("\xE4\xE4\xE4\xE4", Formatted("%lc%hc%lC%hC", 0xE4, 0xE4, 0xE4, 0xE4));
    EXPECT_EQ("%s", Counted("%ls", "a").printable);
    EXPECT_EQ("%-5c", Counted("%-5lC", 1).printable);
    EXPECT_EQ("%ld%hd%lf", Counted("%ld%hd%lf", 1L, 1, 1.0).printable);
}

TEST(LibStringFormat, TheArgumentsMayLieInTheOldText)
{
    LibString text("  abc");
    text.TrimBlanks();
    text.Format("%s, %s", text.GetText(), text.GetText() + 1);
    EXPECT_STREQ("abc, bc", text);
}

TEST(LibStringFormat, LettersThatPrintNothingTakeNoArgument)
{
    EXPECT_EQ("1 2", Formatted("%d%n%r %d", 1, 2));
}

TEST(LibStringFormat, ALetterThatIsNoConversionIsToldInGerman)
{
    const std::string told = "Fehlerhaftes Zeichen im Format-String: ";
    EXPECT_EQ(told + "y", Formatted("%y"));
    EXPECT_EQ(told + "y", Formatted("%d items %y", 3));
    EXPECT_EQ(told + "*", Formatted("%*d", 3, 4));
    EXPECT_EQ(told + "L", Formatted("%Lf", 3.0L));
    EXPECT_EQ(told + "\xE4", Formatted("%5.2\xE4"));
    EXPECT_EQ(told, Formatted("100%")) << "the format's end is no letter";
    EXPECT_EQ(told, Formatted("%-5.2"));
}

TEST(LibStringFormat, TheOldTextGoesWithTheFormat)
{
    LibString text("  old");
    text.TrimBlanks();
    text.Format("%s", "new");
    EXPECT_STREQ("new", text);
    for (const char* format : {"%y", "%d"}) {
        text.Format(format, 7);
    }
    EXPECT_STREQ("7", text);
}

TEST(LibStringFormatDeathTest, AnOverrunIsLoggedAndEndsTheProgramWithZero)
{
    EXPECT_EXIT(
        {
            SetLogSink([](const char* psz) { std::fprintf(stderr, "<%s>", psz); });
            Formatted("a%.50d", 1);
        },
        testing::ExitedWithCode(0), "<a%.50d><thelen < nMaxLen: 51 <> 35>");
}

struct TokenCase {
    const char* text;
    const char* token;
    const char* rest;
};

TEST(LibStringNextToken, GivesTheTextBeforeTheSeparatorAndKeepsTheRest)
{
    const TokenCase cases[] = {{"a, b", "a", "b"},
                               {"a,", "a", ""},
                               {",b", "", "b"},
                               {"a", "a", ""},
                               {"", "", ""},
                               {",", "", ""},
                               {" a ,\t b ", " a ", "b "},
                               {"a,,b", "a", ",b"},
                               {"a,  ", "a", ""},
                               {"a,\nb", "a", "\nb"}};
    for (const TokenCase& c : cases) {
        LibString text(c.text);
        LibString token("before");
        text.NextToken(token, ',');
        EXPECT_STREQ(c.token, token) << c.text;
        EXPECT_STREQ(c.rest, text) << c.text;
    }
}

TEST(LibStringNextToken, ALoopOnTheLengthSeesNoTokenBehindTheLastSeparator)
{
    LibString text("one;two; ;");
    std::vector<std::string> tokens;
    while (text.Length() > 0) {
        LibString token;
        text.NextToken(token, ';');
        tokens.emplace_back(token.GetText());
    }
    EXPECT_EQ((std::vector<std::string>{"one", "two", ""}), tokens);
}

TEST(LibStringNextToken, ATrimmedTextIsReadFromItsView)
{
    LibString text("  a,b");
    text.TrimBlanks();
    LibString token;
    text.NextToken(token, ',');
    EXPECT_STREQ("a", token);
    EXPECT_STREQ("b", text);
}

} // namespace

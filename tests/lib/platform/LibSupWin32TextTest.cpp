#include "lib/platform/LibSupWin32.h"

#include "lib/text/LogSink.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <utility>

namespace {

TEST(LibSupWin32Text, SkipsTrimsAndSearchesAsTheTextHelpersDo)
{
    EXPECT_STREQ("\n a", SkipSpace(" \t\n a"));
    EXPECT_STREQ("a", SkipSpaceAll(" \t\r\n a"));
    char text[] = " a \t";
    EXPECT_STREQ(" a", TrimEnd(text));
    EXPECT_TRUE(IsSpace(' ') && IsSpace('\t') && !IsSpace('\n') && !IsSpace('\0'));
    EXPECT_STREQ("bc", FindIn("b", "abc"));
    EXPECT_EQ(nullptr, FindIn("B", "abc"));
    EXPECT_STREQ("bc", FindInNoCase("B", "abc"));
    EXPECT_EQ(nullptr, FindInNoCase("x", "abc"));
}

TEST(LibSupWin32Text, Compares129Bytes)
{
    const std::string same(128, 'a');
    EXPECT_TRUE(SameText128("", ""));
    EXPECT_TRUE(SameText128("abc", "abc"));
    EXPECT_FALSE(SameText128("abc", "abC"));
    EXPECT_FALSE(SameText128("abc", "abcd"));
    EXPECT_FALSE(SameText128((same + "b").c_str(), (same + "c").c_str()));
    EXPECT_TRUE(SameText128((same + "ab").c_str(), (same + "ac").c_str()));
}

TEST(LibSupWin32Text, CutsCommentsWithoutRegardToQuotes)
{
    const struct {
        const char* line;
        const char* comment;
        const char* lineEnd;
    } cases[] = {{"a # b\n", "a", "a # b"}, {"\"a # b\" \r\n", "\"a", "\"a # b\" "},
                 {"a \t", "a", "a \t"},     {"#", "", "#"},
                 {"a\rb\n", "a", "a"},      {"", "", ""},
                 {" a \n# b", " a", " a "}};
    for (const auto& c : cases) {
        char line[32];
        std::strcpy(line, c.line);
        CutComment(line);
        EXPECT_STREQ(c.comment, line) << c.line;
        std::strcpy(line, c.line);
        CutLineEnd(line);
        EXPECT_STREQ(c.lineEnd, line) << c.line;
    }
}

TEST(LibSupWin32Text, AppendsWhatFits)
{
    char text[8] = "ab";
    AppendLimited(text, "cd", sizeof text);
    EXPECT_STREQ("abcd", text);
    AppendLimited(text, "efghij", sizeof text);
    EXPECT_STREQ("abcdefg", text);
    text[6] = 0;
    AppendLimited(text, "gh", sizeof text);
    EXPECT_STREQ("abcdefg", text) << "the last place but one";
    AppendLimited(text, "x", sizeof text);
    EXPECT_STREQ("abcdefg", text);
    AppendLimited(text, "x", 3);
    EXPECT_STREQ("abcdefg", text) << "nothing is cut off";
    AppendLimited(text, "x", 0);
    EXPECT_STREQ("abcdefg", text);
}

TEST(LibSupWin32Text, PadsUpToALength)
{
    LibString text("ab");
    PadText(text, 4, '0');
    EXPECT_STREQ("00ab", text);
    PadText(text, 4, '0');
    PadText(text, -1, '0');
    EXPECT_STREQ("00ab", text);
    PadRight(text, 6, '.');
    EXPECT_STREQ("00ab..", text);
    PadRight(text, 3, '.');
    EXPECT_STREQ("00ab..", text);
    text = "  ab";
    text.TrimBlanks();
    PadRight(text, 5, '.');
    EXPECT_STREQ("ab...", text) << "blanks that are trimmed away stay away";
}

TEST(LibSupWin32Text, ReplacesEachOccurrence)
{
    const struct {
        const char* source;
        const char* was;
        const char* with;
        const char* expected;
        const char* expectedNoCase;
    } cases[] = {
        {"abcabc", "b", "xyz", "axyzcaxyzc", "axyzcaxyzc"},
        {"abcABC", "b", "", "acABC", "acAC"},
        {"aaa", "aa", "b", "ba", "ba"},
        {"aaa", "a", "aa", "aaaaaa", "aaaaaa"},
        {"abc", "x", "y", "abc", "abc"},
        {"abc", "", "y", "abc", "abc"},
        {"", "a", "b", "", ""},
        {"\xE4", "\xC4", "ae", "\xE4", "ae"},
    };
    for (const auto& c : cases) {
        LibString text(c.source);
        EXPECT_EQ(static_cast<int>(std::string(c.expected).size()), Replace(&text, c.was, c.with))
            << c.source;
        EXPECT_STREQ(c.expected, text) << c.source;
        text = c.source;
        EXPECT_EQ(static_cast<int>(std::string(c.expectedNoCase).size()),
                  ReplaceNoCase(&text, c.was, c.with));
        EXPECT_STREQ(c.expectedNoCase, text) << c.source;
    }
}

TEST(LibSupWin32Text, AReplacedTextHas2047CharactersAtTheMost)
{
    LibString text(std::string(1024, 'a').c_str());
    EXPECT_EQ(2047, Replace(&text, "a", "bc"));
    EXPECT_EQ(2047u, text.Length());
    EXPECT_EQ('b', text.LastChar());
    text = std::string(1023, 'a').c_str();
    EXPECT_EQ(2046, Replace(&text, "a", "bc"));
    const std::string longText(3000, 'a');
    text = longText.c_str();
    EXPECT_EQ(3000, Replace(&text, "b", "c")) << "a text without a hit stays whole";
    EXPECT_EQ(3000, ReplaceNoCase(&text, "B", "c"));
    EXPECT_EQ(3000, Replace(&text, "", "c"));
    EXPECT_EQ(longText, text.GetText());
}

TEST(LibSupWin32TextDeathTest, MisuseEndsTheProgram)
{
    const testing::ExitedWithCode one(1);
    const auto tell = [] { SetLogSink([](const char* psz) { std::fprintf(stderr, "%s", psz); }); };
    char text[8] = "";
    LibString source;
    EXPECT_EXIT((tell(), AppendLimited(nullptr, "", 1)), one, "Assertation \\(p1 != NULL\\) failed");
    EXPECT_EXIT((tell(), AppendLimited(text, nullptr, 1)), one, "Assertation \\(p2 != NULL\\) failed");
    EXPECT_EXIT((tell(), Replace(nullptr, "", "")), one, "Assertation \\(pszSource\\) failed");
    EXPECT_EXIT((tell(), Replace(&source, nullptr, "")), one, "Assertation \\(pszWas\\) failed");
    EXPECT_EXIT((tell(), Replace(&source, "", nullptr)), one, "Assertation \\(pszMit\\) failed");
    EXPECT_EXIT((tell(), ReplaceNoCase(nullptr, "", "")), one, "Assertation \\(pszSource\\) failed");
    EXPECT_EXIT((tell(), ReplaceNoCase(&source, nullptr, "")), one, "Assertation \\(pszWas\\) failed");
    EXPECT_EXIT((tell(), ReplaceNoCase(&source, "", nullptr)), one, "Assertation \\(pszMit\\) failed");
}

TEST(LibSupWin32Text, UnquotesAField)
{
    const std::pair<const char*, const char*> cases[] = {{" a b ", "a b"},    {" \"a b \" c", "a b "},
                                                         {"\"open ", "open"}, {"a \"b\"", "a \"b\""},
                                                         {"\"\"", ""},        {"", ""},
                                                         {"\t", ""}};
    for (const auto& [given, expected] : cases) {
        EXPECT_STREQ(expected, UnquoteField(given)) << given;
    }
}

TEST(LibSupWin32Text, FoldsInPlace)
{
    char lower[] = "aBC1 \xC4\x8E\xDF\n";
    EXPECT_EQ(lower, ToLower(lower));
    EXPECT_STREQ("abc1 \x84_\xE1_", lower);
    char upper[] = "aBC1 \xE4\x8E\xDF\n";
    EXPECT_EQ(upper, ToUpper(upper));
    EXPECT_STREQ("ABC1 \x8E\x8E\xE1_", upper);
}

TEST(LibSupWin32Text, SkipsBlanksAndCommentsOfSource)
{
    const std::pair<const char*, const char*> cases[] = {
        {" \t\r\n\x01 a", "a"}, {"// note\n b", "b"},
        {"// note\r b", "b"},   {"// note", ""},
        {"/* a */ b", "b"},     {"/* a *//* b */// c\nd", "d"},
        {"/* open", ""},        {"/*/ a */b", "b"},
        {"/ a", "/ a"},         {"", ""},
        {"\xA0 a", "\xA0 a"},   {"/*", ""}};
    for (const auto& [given, expected] : cases) {
        EXPECT_STREQ(expected, SkipSource(given)) << given;
    }
}

TEST(LibSupWin32Tables, GiveACodeForATextAndATextForACode)
{
    const TextCode table[] = {{"one", 1}, {"two", 2}, {"eins", 1}, {nullptr, 7}};
    EXPECT_EQ(1, FindCode(table, "one"));
    EXPECT_EQ(1, FindCode(table, "eins"));
    EXPECT_EQ(2, FindCode(table, "two"));
    EXPECT_EQ(0, FindCode(table, "Two"));
    EXPECT_EQ(0, FindCode(table, ""));
    EXPECT_EQ(0, FindCode(table, nullptr));
    EXPECT_EQ(0, FindCode(nullptr, "one"));
    EXPECT_EQ(nullptr, FindName(nullptr, 1));
    EXPECT_STREQ("one", FindName(table, 1));
    EXPECT_STREQ("two", FindName(table, 2));
    EXPECT_EQ(nullptr, FindName(table, 7));
    EXPECT_EQ(nullptr, FindName(table, 0));
}

} // namespace

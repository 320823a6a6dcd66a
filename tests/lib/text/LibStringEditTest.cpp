#include "lib/text/LibString.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace {

TEST(LibStringAssign, WritesNumbersThroughThe32BitFormats)
{
    LibString text;
    EXPECT_STREQ("-7", text = -7);
    EXPECT_STREQ("0", text = 0);
    EXPECT_STREQ("2147483647", text = 2147483647);
    EXPECT_STREQ("7", text = 7u);
    EXPECT_STREQ("-1", text = 4294967295u) << "through %d";
    EXPECT_STREQ("-2147483648", text = -2147483648L);
    EXPECT_STREQ("7", text = 7ul);
    EXPECT_STREQ("-1", text = 4294967295ul) << "through %ld";
    EXPECT_STREQ("x", text = 'x');
    EXPECT_STREQ("\xE4", text = '\xE4');
    EXPECT_STREQ("", text = '\0');
}

TEST(LibStringAppend, PutsTheTextBehind)
{
    LibString text("ab");
    const char* const grown = text.Append("cd");
    EXPECT_EQ(text.GetText(), grown);
    EXPECT_STREQ("abcd", text);
    text += "e";
    text += LibString("f");
    text += 'g';
    EXPECT_STREQ("abcdefg", text);
    LibString empty;
    empty += "x";
    EXPECT_STREQ("x", empty);
}

TEST(LibStringAppend, AnEmptyAdditionChangesNothingAndANullOneGivesNull)
{
    LibString text("  ab");
    text.TrimBlanks();
    const char* const view = text.GetText();
    EXPECT_EQ(view, text.Append(""));
    text += LibString();
    text += '\0';
    EXPECT_EQ(view, text.GetText());
    EXPECT_EQ(nullptr, text.Append(nullptr));
    text += static_cast<const char*>(nullptr);
    EXPECT_STREQ("ab", text);
}

TEST(LibStringAppend, GrowingBringsTheBlanksTrimmedAtTheLeftBack)
{
    LibString text(" \tab  ");
    text.TrimBlanks();
    EXPECT_STREQ("ab", text);
    text += "c";
    EXPECT_STREQ(" \tabc", text);
}

TEST(LibStringAppend, AStringCanBeAppendedToItself)
{
    LibString text("abc");
    text += text;
    EXPECT_STREQ("abcabc", text);
    text += text.GetText() + 4;
    EXPECT_STREQ("abcabcbc", text);
    LibString trimmed(" x");
    trimmed.TrimBlanks();
    trimmed += trimmed;
    EXPECT_STREQ(" xx", trimmed);
}

TEST(LibStringAppend, AddsInEveryPairing)
{
    const LibString a("a");
    const LibString b("b");
    EXPECT_STREQ("ab", a + b);
    EXPECT_STREQ("ab", a + "b");
    EXPECT_STREQ("ab", "a" + b);
    EXPECT_STREQ("ab", a + 'b');
    EXPECT_STREQ("ab", 'a' + b);
    EXPECT_STREQ("a, b", a + ", " + b);
    EXPECT_STREQ("a", a + static_cast<const char*>(nullptr));
    EXPECT_STREQ("a", a) << "the operands stay";
}

struct PairCase {
    const char* one;
    const char* other;
    int order;
    int orderNoCase;
};

int Sign(int n) { return (n > 0) - (n < 0); }

TEST(LibStringCompare, OrdersByTheBytes)
{
    const PairCase cases[] = {{"", "", 0, 0},      {"a", "a", 0, 0},         {"a", "b", -1, -1},
                              {"b", "a", 1, 1},    {"a", "ab", -1, -1},      {"ab", "a", 1, 1},
                              {"a", "A", 1, 0},    {"Z", "a", -1, 1},        {"_", "a", -1, -1},
                              {"\xE4", "z", 1, 1}, {"\xE4", "\xC4", 1, 1},   {"a", nullptr, 1, 1},
                              {"", nullptr, 0, 0}, {"HALLO", "hallo", -1, 0}};
    for (const PairCase& c : cases) {
        const LibString one(c.one);
        const LibString other(c.other);
        EXPECT_EQ(c.order, Sign(one.Compare(c.other))) << c.one;
        EXPECT_EQ(c.order, Sign(one.Collate(c.other))) << c.one;
        EXPECT_EQ(c.orderNoCase, Sign(one.CompareNoCase(c.other))) << c.one;
        EXPECT_EQ(c.order == 0, one == other);
        EXPECT_EQ(c.order != 0, one != other);
        EXPECT_EQ(c.order < 0, one < other);
        EXPECT_EQ(c.order > 0, one > other);
        EXPECT_EQ(c.order <= 0, one <= other);
        EXPECT_EQ(c.order >= 0, one >= other);
        EXPECT_EQ(c.order == 0, one == c.other);
        EXPECT_EQ(c.order != 0, one != c.other);
        EXPECT_EQ(c.order < 0, one < c.other);
        EXPECT_EQ(c.order > 0, one > c.other);
        EXPECT_EQ(c.order <= 0, one <= c.other);
        EXPECT_EQ(c.order >= 0, one >= c.other);
        EXPECT_EQ(c.order == 0, c.one == other);
        EXPECT_EQ(c.order != 0, c.one != other);
        EXPECT_EQ(c.order < 0, c.one < other);
        EXPECT_EQ(c.order > 0, c.one > other);
        EXPECT_EQ(c.order <= 0, c.one <= other);
        EXPECT_EQ(c.order >= 0, c.one >= other);
    }
}

TEST(LibStringParts, AreClampedToTheText)
{
    const LibString text("abcdef");
    EXPECT_STREQ("ab", text.Left(2));
    EXPECT_STREQ("", text.Left(0));
    EXPECT_STREQ("", text.Left(-1));
    EXPECT_STREQ("abcdef", text.Left(100));
    EXPECT_STREQ("ef", text.Right(2));
    EXPECT_STREQ("", text.Right(0));
    EXPECT_STREQ("", text.Right(-5));
    EXPECT_STREQ("abcdef", text.Right(100));
    EXPECT_STREQ("cd", text.Mid(2, 2));
    EXPECT_STREQ("f", text.Mid(5, 7));
    EXPECT_STREQ("", text.Mid(6, 1));
    EXPECT_STREQ("", text.Mid(100, 1));
    EXPECT_STREQ("ab", text.Mid(-3, 2));
    EXPECT_STREQ("", text.Mid(2, -1));
    EXPECT_STREQ("cdef", text.Mid(2));
    EXPECT_STREQ("", text.Mid(6));
    EXPECT_STREQ("abcdef", text.Mid(-1));
    EXPECT_STREQ("", LibString().Mid(0, 3));
    EXPECT_STREQ("bcdef", text.Mid(1, INT64_MAX));
}

TEST(LibStringParts, SetAtIsIgnoredOutsideTheText)
{
    LibString text("abc");
    text.SetAt(0, 'x');
    text.SetAt(2, 'z');
    text.SetAt(3, '!');
    text.SetAt(-1, '!');
    text.SetAt(1000000, '!');
    EXPECT_STREQ("xbz", text);
}

TEST(LibStringParts, TheLastCharacter)
{
    LibString text("ab");
    EXPECT_EQ('b', text.LastChar());
    EXPECT_FALSE(text.RemoveLastChar('a'));
    EXPECT_TRUE(text.RemoveLastChar('b'));
    EXPECT_STREQ("a", text);
    EXPECT_TRUE(text.RemoveLastChar('a'));
    EXPECT_FALSE(text.RemoveLastChar('a'));
    EXPECT_FALSE(text.RemoveLastChar('\0'));
    EXPECT_EQ(0, text.LastChar());
}

TEST(LibStringTrim, EachSideInEachForm)
{
    const char* const given = "\r\n \t a \t\r\n ";
    LibString text(given);
    text.TrimBlanksLeft();
    EXPECT_STREQ(given, text) << "a line end is no blank";
    text.TrimBlanksRight();
    EXPECT_STREQ("\r\n \t a \t\r\n", text);
    text.TrimAllLeft();
    EXPECT_STREQ("a \t\r\n", text);
    text.TrimAllRight();
    EXPECT_STREQ("a", text);
    text = given;
    text.TrimAll();
    EXPECT_STREQ("a", text);
    text = " \ta\t ";
    text.TrimBlanksLeft();
    EXPECT_STREQ("a\t ", text);
    text.TrimBlanksRight();
    EXPECT_STREQ("a", text);
    text = "\r\n";
    text.TrimAll();
    EXPECT_STREQ("", text);
}

TEST(LibStringCase, OfPlainLettersOnly)
{
    LibString text("[Az\xC4\xE4@`{9");
    text.MakeLower();
    EXPECT_STREQ("[az\xC4\xE4@`{9", text);
    text.MakeUpper();
    EXPECT_STREQ("[AZ\xC4\xE4@`{9", text);
}

TEST(LibStringCut, AtTheFirstCharacter)
{
    LibString text("a=b=c");
    EXPECT_FALSE(text.CutAt('x'));
    EXPECT_FALSE(text.CutAt('\0'));
    EXPECT_TRUE(text.CutAt('='));
    EXPECT_STREQ("a", text);

    text = "a=b=c";
    EXPECT_STREQ("b=c", text.TailAfter('='));
    EXPECT_STREQ("a", text);
    EXPECT_STREQ("", text.TailAfter('='));
    EXPECT_STREQ("a", text);
    text = "a=";
    EXPECT_STREQ("", text.TailAfter('='));
    EXPECT_STREQ("a", text);
}

TEST(LibStringOther, ASafeNameHasNoSpecialBytes)
{
    LibString text("M31@Tele=scope #2\t\x7F!\xE4");
    EXPECT_TRUE(text.MakeSafeName());
    EXPECT_STREQ("M31_Tele_scope__2_\x7F!_", text);
    EXPECT_FALSE(text.MakeSafeName());
    for (int byte = 1; byte < 256; ++byte) {
        LibString one(static_cast<char>(byte));
        const bool special = byte < 33 || byte > 127 || byte == '@' || byte == '=' || byte == '#';
        EXPECT_EQ(special, one.MakeSafeName()) << byte;
        EXPECT_EQ(special ? '_' : static_cast<char>(byte), one.At(0)) << byte;
    }
    LibString empty;
    EXPECT_FALSE(empty.MakeSafeName());
}

TEST(LibStringOther, AnAddressHasItsLowestByteFirst)
{
    LibString text;
    text.SetFromIP(0x0100007F);
    EXPECT_STREQ("127.0.0.1", text);
    text.SetFromIP(0xFFFEFDFC);
    EXPECT_STREQ("252.253.254.255", text);
    text.SetFromIP(0);
    EXPECT_STREQ("0.0.0.0", text);
}

TEST(LibStringOther, HashIsTimes33PlusTheSignedByte)
{
    EXPECT_EQ(0, LibString::Hash(nullptr));
    EXPECT_EQ(0, LibString::Hash(""));
    EXPECT_EQ(97, LibString::Hash("a"));
    EXPECT_EQ(97 * 33 + 98, LibString::Hash("ab"));
    EXPECT_EQ(-28, LibString::Hash("\xE4"));
    EXPECT_EQ(-28 * 33 + 97, LibString::Hash("\xE4"
                                             "a"));
    // 97 * (33^0 + ... + 33^9), cut to 32 bits with sign, by Python's whole numbers.
    EXPECT_EQ(1145111914, LibString::Hash("aaaaaaaaaa"));
    EXPECT_EQ(-1518380686, LibString::Hash(LibString("Orreva workbench")));
}

TEST(LibStringPaths, ByTheBackslash)
{
    LibString text("c:\\a\\b\\");
    EXPECT_TRUE(text.RemoveLastSlash());
    EXPECT_STREQ("c:\\a\\b", text);
    EXPECT_FALSE(text.RemoveLastSlash());
    EXPECT_STREQ("b", text.FileNamePart());
    text.ParentDirectory();
    EXPECT_STREQ("c:\\a", text);
    text = "c:\\a\\";
    EXPECT_STREQ("", text.FileNamePart());
    text.ParentDirectory();
    EXPECT_STREQ("c:", text);
    text.ParentDirectory();
    EXPECT_STREQ("c:", text) << "no backslash, nothing to cut";
    EXPECT_STREQ("c:", text.FileNamePart());
    text = "a/b";
    EXPECT_FALSE(text.RemoveLastSlash());
    EXPECT_STREQ("a/b", text.FileNamePart());
}

} // namespace

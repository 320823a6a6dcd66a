#include "document/OldArchive.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace std::string_literals;

TEST(OldArchive, IntegersAreLittleEndian)
{
    const std::string bytes = "\x01\x02\x03\x84\xff\xff\xff\xff"s;
    OldArchive archive(bytes);
    std::uint32_t magic = 0;
    std::int32_t type = 0;
    EXPECT_TRUE(archive.Read(magic));
    EXPECT_EQ(0x84030201u, magic);
    EXPECT_TRUE(archive.Read(type));
    EXPECT_EQ(-1, type);
}

TEST(OldArchive, DoublesComeBitForBit)
{
    const std::string bytes = "\0\0\0\0\0\0\xf8\x3f"s              // 1.5
                              "\0\0\0\0\0\0\xf0\x7f"s              // the unset mark
                              "\x9a\x99\x99\x99\x99\x99\xb9\xbf"s; // -0.1
    OldArchive archive(bytes);
    double value = 0;
    EXPECT_TRUE(archive.Read(value));
    EXPECT_EQ(1.5, value);
    EXPECT_TRUE(archive.Read(value));
    EXPECT_EQ(HUGE_VAL, value);
    EXPECT_TRUE(archive.Read(value));
    EXPECT_EQ(-0.1, value);
    EXPECT_FALSE(archive.Read(value));
    EXPECT_EQ(-0.1, value) << "a read past the end stores nothing";
}

TEST(OldArchive, ReadsPastTheEndStoreNothing)
{
    const std::string bytes = "\x01\x02\x03"s;
    std::uint32_t word = 7;
    std::int32_t type = -5;
    double real = 2.5;
    LibString text("before");
    EXPECT_FALSE(OldArchive(bytes).Read(word));
    EXPECT_FALSE(OldArchive(bytes).Read(type));
    EXPECT_FALSE(OldArchive(bytes).Read(real));
    EXPECT_FALSE(OldArchive("\x05"
                            "abcd"s)
                     .Read(text));
    EXPECT_FALSE(OldArchive("").Read(text));
    EXPECT_EQ(7u, word);
    EXPECT_EQ(-5, type);
    EXPECT_EQ(2.5, real);
    EXPECT_STREQ("before", text);
}

struct StringCase {
    const char* what;
    std::string head;
    std::size_t length;
};

TEST(OldArchive, StringLengthsStandInOneTwoOrFourBytes)
{
    const StringCase cases[] = {
        {"empty", "\x00"s, 0},
        {"one byte", "\x01"s, 1},
        {"the longest in one byte", "\xfe"s, 254},
        {"the shortest in two", "\xff\xff\x00"s, 255},
        {"two bytes", "\xff\x2c\x01"s, 300},
        {"the longest in two", "\xff\xfd\xff"s, 65533},
        {"the shortest in four", "\xff\xff\xff\xfe\xff\x00\x00"s, 65534},
        {"65535", "\xff\xff\xff\xff\xff\x00\x00"s, 65535},
        {"four bytes", "\xff\xff\xff\x70\x11\x01\x00"s, 70000},
        {"a short text behind the long mark", "\xff\xff\xff\x03\x00\x00\x00"s, 3},
    };
    for (const StringCase& row : cases) {
        SCOPED_TRACE(row.what);
        const std::string whole = row.head + std::string(row.length, 'x') + "\x2a\0\0\0"s;
        OldArchive archive(whole);
        LibString text("old");
        std::uint32_t behind = 0;
        EXPECT_TRUE(archive.Read(text));
        EXPECT_EQ(std::string(row.length, 'x'), text.GetText());
        EXPECT_TRUE(archive.Read(behind));
        EXPECT_EQ(42u, behind);

        const std::string cut = whole.substr(0, row.head.size() + row.length - (row.length > 0 ? 1 : 0));
        if (row.length > 0) {
            EXPECT_FALSE(OldArchive(cut).Read(text));
        }
        for (std::size_t n = 0; n < row.head.size(); ++n) {
            EXPECT_FALSE(OldArchive(row.head.substr(0, n)).Read(text)) << n;
        }
    }
}

TEST(OldArchive, ALengthBeyondTheEndIsRefusedBeforeAnythingIsAllocated)
{
    LibString text("before");
    EXPECT_FALSE(OldArchive("\xff\xff\xff\xff\xff\xff\xff"
                            "abc"s)
                     .Read(text));
    EXPECT_FALSE(OldArchive("\xff\xff\xff\xff\xff\xff\x7f"
                            "abc"s)
                     .Read(text));
    EXPECT_FALSE(OldArchive("\xff\xfe\xff\xff\xff\xff\xff\xff\xff\x7f"
                            "abc"s)
                     .Read(text));
    EXPECT_STREQ("before", text);
}

TEST(OldArchive, TextOfTwoByteCharactersComesInTheCodePage)
{
    LibString text;
    EXPECT_TRUE(OldArchive("\xff\xfe\xff\x04T\0\xfc\0\xac\x20\x34\x12"s).Read(text));
    EXPECT_STREQ("T\xfc\x80?", text) << "u umlaut, the euro sign, and one that the code page lacks";
    EXPECT_FALSE(OldArchive("\xff\xfe\xff\x02T\0u"s).Read(text)) << "half a character";
    EXPECT_FALSE(OldArchive("\xff\xfe\xff\xff\xfe\xff\x01T\0"s).Read(text)) << "the mark twice";
}

TEST(OldArchive, AZeroByteEndsAText)
{
    const std::string bytes = "\x05"
                              "ab\0cd\x01z"s;
    OldArchive archive(bytes);
    LibString text;
    EXPECT_TRUE(archive.Read(text));
    EXPECT_STREQ("ab", text);
    EXPECT_TRUE(archive.Read(text));
    EXPECT_STREQ("z", text);
}

} // namespace

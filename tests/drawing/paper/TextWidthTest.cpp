#include "drawing/paper/TextWidth.h"

#include "lib/text/CodePage.h"

#include <gtest/gtest.h>

namespace {

// With a line of 2288 parts an em has 2048.
constexpr Font kParts{2288};
constexpr Font kBoldParts{2288, Font::kBold};

TEST(TextWidth, AddsTheAdvancesOfTheCharacters)
{
    EXPECT_EQ(0, TextWidth("", kParts));
    EXPECT_DOUBLE_EQ(1139, TextWidth("0", kParts)) << "digits are 0.556 em wide";
    EXPECT_DOUBLE_EQ(1706 + 455 + 569, TextWidth("Mi ", kParts));
    EXPECT_DOUBLE_EQ(1593, TextWidth("\xD6", kParts)) << "an umlaut is as wide as its letter";
    EXPECT_DOUBLE_EQ(1251, TextWidth("n", kBoldParts));
    EXPECT_DOUBLE_EQ(1139.0 / 2, TextWidth("0", {1144}));
    EXPECT_EQ(0, TextWidth("\n\t", kParts)) << "control characters are not seen";
}

TEST(TextWidth, ATextThatIsTooLongEndsInAnEllipsis)
{
    EXPECT_EQ("0000", CutToWidth("0000", kParts, 4 * 1139));
    EXPECT_EQ("00\x85", CutToWidth("00000", kParts, 2 * 1139 + 2048));
    EXPECT_EQ("\x85", CutToWidth("00000", kParts, 10));
    EXPECT_LE(TextWidth(CutToWidth(std::string(100, 'W'), kBoldParts, 50000), kBoldParts), 50000);
}

} // namespace

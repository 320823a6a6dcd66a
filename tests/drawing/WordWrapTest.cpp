#include "drawing/WordWrap.h"

#include "support/RecordingSurface.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using Lines = std::vector<std::string_view>;

Lines Wrap(std::string_view text, std::int32_t width)
{
    return WrapWords(text, width, [](std::string_view piece) { return static_cast<double>(piece.size()); });
}

TEST(WordWrap, BreaksBetweenWordsAtTheWidth)
{
    EXPECT_EQ((Lines{"one two", "three"}), Wrap("one two three", 7));
    EXPECT_EQ((Lines{"one", "two", "three"}), Wrap("one two three", 6));
    EXPECT_EQ((Lines{"one two three"}), Wrap("one two three", 13));
}

TEST(WordWrap, DropsTheBlanksAtABreakAndKeepsTheOthers)
{
    EXPECT_EQ((Lines{"a  b", "c"}), Wrap("a  b   c", 5));
    EXPECT_EQ((Lines{"  a"}), Wrap("  a", 3));
    EXPECT_EQ((Lines{"ab"}), Wrap("ab   ", 3));
}

TEST(WordWrap, LeavesAWordThatIsTooLongWhole)
{
    EXPECT_EQ((Lines{"a", "incomprehensible", "b"}), Wrap("a incomprehensible b", 5));
    EXPECT_EQ((Lines{"word", "word"}), Wrap("word word", 0));
    EXPECT_EQ((Lines{"word", "word"}), Wrap("word word", -3));
}

TEST(WordWrap, EndsALineAtALineBreak)
{
    EXPECT_EQ((Lines{"a b", "", "c", "d"}), Wrap("a b\n\nc\r\nd", 9));
    EXPECT_EQ((Lines{"a"}), Wrap("a\n", 9));
}

TEST(WordWrap, GivesAnEmptyTextNoLine)
{
    EXPECT_EQ(Lines{}, Wrap("", 9));
    EXPECT_EQ((Lines{"   "}), Wrap("   ", 9));
}

TEST(RecordingSurface, KeepsCallsAndMeasuresSixPixelsACharacter)
{
    RecordingSurface surface(300, 200);
    EXPECT_EQ(300, surface.Width());
    EXPECT_EQ(200, surface.Height());
    const Font font{14, Font::kBold};
    EXPECT_EQ(14, surface.WrappedText({2, 2, 2 + 42, 1000}, "one two", font, kWhite));
    EXPECT_EQ(28, surface.WrappedText({2, 2, 2 + 41, 1000}, "one two", font, kWhite));
    EXPECT_EQ(0, surface.WrappedText({2, 2, 44, 1000}, "", font, kWhite));
    surface.Line({1, 2}, {3, 4}, kBlack);
    ASSERT_EQ(4u, surface.calls.size());
    EXPECT_EQ((drawn::Line{{1, 2}, {3, 4}, kBlack}), surface.Of<drawn::Line>().at(0));
    EXPECT_EQ((drawn::Call{drawn::WrappedText{{2, 2, 44, 1000}, "one two", font, kWhite}}), surface.calls[0]);
}

} // namespace

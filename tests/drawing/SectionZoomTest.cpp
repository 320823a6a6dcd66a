#include "drawing/SectionZoom.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();

TEST(SectionZoom, ComesCloserByDoubleClicksUpToFive)
{
    SectionZoom view;
    EXPECT_TRUE(view.DoubleClick({100, 40}));
    EXPECT_EQ((SectionZoom{2, 100, 40}), view);
    EXPECT_TRUE(view.DoubleClick({10, 7}));
    EXPECT_EQ((SectionZoom{3, 110, 47}), view);
    EXPECT_TRUE(view.DoubleClick({0, 0}));
    EXPECT_TRUE(view.DoubleClick({1, 1}));
    EXPECT_EQ((SectionZoom{5, 111, 48}), view);
    EXPECT_FALSE(view.DoubleClick({1, 1}));
    EXPECT_EQ((SectionZoom{5, 111, 48}), view);
}

TEST(SectionZoom, GoesBackByRightClicksInWholeNumbers)
{
    SectionZoom view{5, 111, 48};
    view.RightClick();
    EXPECT_EQ((SectionZoom{4, 88, 36}), view); // 111 / 5 = 22, 48 / 5 = 9, four times each
    view.RightClick();
    EXPECT_EQ((SectionZoom{3, 66, 27}), view);
    view.RightClick();
    EXPECT_EQ((SectionZoom{2, 44, 18}), view);
    view.RightClick();
    EXPECT_EQ((SectionZoom{1, 22, 9}), view);
    view.RightClick();
    EXPECT_EQ((SectionZoom{1, 22, 9}), view) << "nothing changes at the first step";
}

TEST(SectionZoom, DividesBeforeItMultiplies)
{
    SectionZoom view{5, 114, 59};
    view.RightClick();
    EXPECT_EQ((SectionZoom{4, 88, 44}), view)
        << "22 and 11 four times; 114 * 4 / 5 and 59 * 4 / 5 are 91 and 47";
}

TEST(SectionZoom, IsPulledBackWhereThePictureCoversTheWindow)
{
    SectionZoom view{3, 5000, 4000};
    view.Clamp(400, 300);
    EXPECT_EQ((SectionZoom{3, 800, 600}), view);
    view.Clamp(100, 50); // the window shrinks
    EXPECT_EQ((SectionZoom{3, 200, 100}), view);
    view.Clamp(400, 300);
    EXPECT_EQ((SectionZoom{3, 200, 100}), view);
    view = {1, 22, 9};
    view.Clamp(400, 300);
    EXPECT_EQ((SectionZoom{1, 0, 0}), view);
    view = {2, -4, -5};
    view.Clamp(400, 300);
    EXPECT_EQ((SectionZoom{2, 0, 0}), view);
}

TEST(SectionZoom, StaysWithinItsNumbers)
{
    SectionZoom view{4, kLargest, kLargest};
    view.DoubleClick({kLargest, 5});
    EXPECT_EQ((SectionZoom{5, kLargest, kLargest}), view);
    view.Clamp(kLargest, 30);
    EXPECT_EQ((SectionZoom{5, 0, 120}), view);
    EXPECT_EQ((Pixel{kLargest, 150}), view.PictureSize(kLargest, 30));
}

TEST(SectionZoom, StepsAboutTheMiddleByTheKeyboard)
{
    SectionZoom view;
    const Pixel window{400, 200};
    EXPECT_FALSE(view.StepOut(window));
    EXPECT_TRUE(view.StepIn(window));
    EXPECT_EQ((SectionZoom{2, 200, 100}), view); // the middle of 800 by 400
    EXPECT_TRUE(view.StepIn(window));
    EXPECT_EQ((SectionZoom{3, 400, 200}), view); // and of 1200 by 600
    EXPECT_TRUE(view.StepIn(window));
    EXPECT_TRUE(view.StepIn(window));
    EXPECT_FALSE(view.StepIn(window)) << "five is the most";
    for (int i = 0; i < 4; ++i) {
        EXPECT_TRUE(view.StepOut(window));
    }
    EXPECT_EQ((SectionZoom{1, 0, 0}), view);
}

TEST(SectionZoom, MovesWithinThePicture)
{
    SectionZoom view{2, 200, 100};
    const Pixel window{400, 200};
    EXPECT_TRUE(view.Move({-40, 0}, window));
    EXPECT_EQ((SectionZoom{2, 160, 100}), view);
    EXPECT_TRUE(view.Move({kLargest, kLargest}, window));
    EXPECT_EQ((SectionZoom{2, 400, 200}), view);
    EXPECT_FALSE(view.Move({0, 20}, window)) << "it stands at the lower edge";
    SectionZoom whole;
    EXPECT_FALSE(whole.Move({40, 20}, window));
}

} // namespace

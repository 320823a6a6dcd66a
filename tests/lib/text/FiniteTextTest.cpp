#include "lib/text/FiniteText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(FiniteText, FormatsAsEverWhatIsFinite)
{
    EXPECT_EQ("41.7 mm (1.64\")", FiniteText("%0.1f mm (%0.2f\")", {41.666, 1.6404}));
    EXPECT_EQ("f/6.00", FiniteText("f/%0.2f", {6, 0.2}));
    EXPECT_EQ("12.50 %", FiniteText("%0.2f %%", {12.5}));
    EXPECT_EQ("none", FiniteText("none", {}));
}

TEST(FiniteText, SetsADashForEachNumberThatIsNot)
{
    EXPECT_EQ("12.57 mm (\x96\xB0)", FiniteText("%0.2f mm (%0.2f\xB0)", {12.567, NAN}));
    EXPECT_EQ("12.57 mm (\x96\xB0)", FiniteText("%0.2f mm (%0.2f\xB0)", {12.567, -NAN}));
    EXPECT_EQ("\x96 mm (1.00\xB0)", FiniteText("%0.2f mm (%0.2f\xB0)", {HUGE_VAL, 1}));
    EXPECT_EQ("f/\x96", FiniteText("f/%0.2f", {-HUGE_VAL}));
    EXPECT_EQ("\x96 %", FiniteText("%0.2f %%", {NAN}));
}

} // namespace

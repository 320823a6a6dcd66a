#include "model/analysis/QuickNewReading.h"

#include "lib/text/Language.h"

#include <gtest/gtest.h>

namespace {

std::string Read(const std::string& aperture, const std::string& focalLength)
{
    return QuickNewReading(aperture, focalLength, kEnglish);
}

TEST(QuickNewReading, TellsTheNumbersAndTheirRatio)
{
    EXPECT_EQ("200 mm, 1200 mm, f/6.0", Read("200", "1200"));
    EXPECT_EQ("114.5 mm, 900.25 mm, f/7.9", Read(" 114.50 ", "900.25"));
    EXPECT_EQ("-200 mm, 1000 mm, f/-5.0", Read("-200", "1e3"));
}

TEST(QuickNewReading, ShowsWhatIsLost)
{
    EXPECT_EQ("200 mm, 1200 mm, f/6.0; not read: \",5\"", Read("200,5", "1200"));
    EXPECT_EQ("8 mm, 1200 mm, f/150.0; not read: \"inch\"", Read("8 inch", "1200"));
    EXPECT_EQ("8 mm, 0 mm, f/0.0; not read: \"\"\"; not read: \"f6\"", Read("8\"", "f6"));
    EXPECT_EQ("200 mm, 1200 mm, f/6.0; nicht gelesen: \"mm\"", QuickNewReading("200", "1200mm", kGerman));
    EXPECT_EQ("1 mm, 1 mm, f/1.0; not read: \"" + std::string(40, 'x') + "...\"",
              Read("1" + std::string(5000, 'x'), "1"));
}

TEST(QuickNewReading, NothingIsTooOdd)
{
    EXPECT_EQ("0 mm, 0 mm, f/\x96", Read("", ""));
    EXPECT_EQ("0 mm, 1200 mm, f/\x96", Read("-0", "1200"));
    EXPECT_EQ("\x96 mm, 1e+300 mm, f/0.0", Read("1e999", "1e300"));
}

} // namespace

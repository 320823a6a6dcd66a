#include "model/optics/Readings.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr double kOuter = 100;

/// Line and English reason of the fault; empty if there is none.
std::string Fault(std::string_view text, double outer = kOuter)
{
    const ReadingsParse parse = ParseReadings(text, outer);
    return parse.fault ? FaultText(*parse.fault, kEnglish) : "";
}

TEST(Readings, AZoneALineWithOneOrMoreReadings)
{
    const ReadingsParse parse = ParseReadings("30,0.1\n60,0.5,0.7\n90,1.2,1.3,1.4\n", kOuter);
    EXPECT_FALSE(parse.fault);
    ASSERT_EQ(3u, parse.zones.size());
    EXPECT_EQ(30, parse.zones[0].radius);
    EXPECT_EQ((std::vector<double>{0.1}), parse.zones[0].readings);
    EXPECT_EQ((std::vector<double>{1.2, 1.3, 1.4}), parse.zones[2].readings);
    const auto means = MeansOf(parse.zones);
    EXPECT_EQ(60, means[1].radius);
    EXPECT_DOUBLE_EQ(0.6, means[1].reading);
    EXPECT_DOUBLE_EQ(1.3, means[2].reading);
}

TEST(Readings, SeparatorsMayBeMixedAndBlanksStandAroundNumbers)
{
    const ReadingsParse parse = ParseReadings(" 30 ; -1.5 , +.5\n60\t2.;3e-1\n90,1E+1", kOuter);
    EXPECT_FALSE(parse.fault);
    ASSERT_EQ(3u, parse.zones.size());
    EXPECT_EQ((std::vector<double>{-1.5, 0.5}), parse.zones[0].readings);
    EXPECT_EQ((std::vector<double>{2, 0.3}), parse.zones[1].readings);
    EXPECT_EQ((std::vector<double>{10}), parse.zones[2].readings);
}

TEST(Readings, ByteOrderMarkAndLineEndsOfOtherSystemsAreFine)
{
    EXPECT_EQ("", Fault("\xEF\xBB\xBF"
                        "30,1\r\n60,2\r\n90,3\r\n"));
    EXPECT_EQ("", Fault("\xEF\xBB\xBF# zones\r\n\r\n30,1\r\n60,2\r\n90,3"));
    EXPECT_EQ(3u, ParseReadings("30,1\r\n60,2\r\n90,3\r\n", kOuter).zones.size());
}

TEST(Readings, ASecondByteOrderMarkIsNone)
{
    EXPECT_EQ("line 1: the radius of the zone is no number",
              Fault("\xEF\xBB\xBF\xEF\xBB\xBF# zones\n30,1\n"));
}

TEST(Readings, SkippedLinesCountAsLines)
{
    const char* const text = "# mirror of 1998\nradius,reading\n\n30,1\n#\n60,2\n90,3\n";
    EXPECT_EQ("", Fault(text));
    EXPECT_EQ("line 8: a reading is no number", Fault(std::string(text) + "95,x"));
    EXPECT_EQ("line 3: the radius of the zone is no number", Fault("#\n\nRadius,1\n"));
    EXPECT_EQ("line 1: the radius of the zone is no number", Fault(" # a blank before it"));
    EXPECT_EQ("line 1: the radius of the zone is no number", Fault("   \n30,1\n60,1\n90,1"));
}

TEST(Readings, WhatIsNoNumberIsAFault)
{
    for (const char* cell : {"",
                             " ",
                             "nan",
                             "inf",
                             "-inf",
                             "1.2.3",
                             "1e",
                             "1e+",
                             ".",
                             "+",
                             "-",
                             "e5",
                             "0x10",
                             "1 2",
                             "--1",
                             "1e999",
                             "infinity",
                             "\"1\"",
                             "1\xC3\xA4",
                             "\xA0"
                             "1",
                             "\r1"}) {
        EXPECT_EQ("line 2: a reading is no number", Fault(std::string("30,1\n60,1,") + cell + "\n90,1"))
            << cell;
        EXPECT_EQ("line 3: the radius of the zone is no number",
                  Fault(std::string("30,1\n60,1\n") + cell + ",1\n"))
            << cell;
    }
    EXPECT_EQ("line 2: a reading is no number", Fault(std::string("30,1\n60,1\0\n90,1", 15)));
    EXPECT_EQ("line 1: a reading is no number", Fault("30,1,\n60,2\n90,3"));
    EXPECT_EQ("", Fault("30,1e-999\n60,2\n90,3"));
}

TEST(Readings, RadiiRiseAbove0UpToTheEdge)
{
    EXPECT_EQ("line 1: the radius of a zone must be above 0", Fault("0,1\n60,2\n90,3"));
    EXPECT_EQ("line 1: the radius of a zone must be above 0", Fault("-5,1\n60,2\n90,3"));
    EXPECT_EQ("line 2: the radii of the zones must rise", Fault("30,1\n30,2\n90,3"));
    EXPECT_EQ("line 3: the radii of the zones must rise", Fault("30,1\n60,2\n59.999,3"));
    EXPECT_EQ("", Fault("30,1\n60,2\n100,3"));
    EXPECT_EQ("line 3: the zone lies beyond the edge of the mirror", Fault("30,1\n60,2\n100.0001,3"));
    EXPECT_EQ("line 1: the zone lies beyond the edge of the mirror", Fault("30,1\n60,2\n90,3", std::nan("")));
    EXPECT_EQ("line 2: the zone has no reading", Fault("30,1\n60\n90,3"));
}

TEST(Readings, FromThreeToSixtyFourZonesOfUpToAHundredReadings)
{
    EXPECT_EQ("line 1: fewer than 3 zones", Fault(""));
    EXPECT_EQ("line 2: fewer than 3 zones", Fault("30,1\n60,2\n"));
    EXPECT_EQ("line 4: fewer than 3 zones", Fault("30,1\n60,2\n\n#"));
    std::string text = "radius,reading\n";
    for (int i = 1; i <= 64; ++i) {
        text += std::to_string(i) + ",0\n";
    }
    EXPECT_EQ("", Fault(text));
    EXPECT_EQ("line 67: more than 64 zones", Fault(text + "#\n65,0\n66,0\n"));
    for (int i = 65; i < 10000; ++i) {
        text += std::to_string(i) + ",0\n";
    }
    EXPECT_EQ("line 66: more than 64 zones", Fault(text, 1e9));

    std::string zone = "30";
    for (int i = 0; i < 100; ++i) {
        zone += ",1";
    }
    EXPECT_EQ("", Fault(zone + "\n60,1\n90,1"));
    EXPECT_EQ("line 1: more than 100 readings of a zone", Fault(zone + ",1\n60,1\n90,1"));
}

TEST(Readings, OtherEncodingsAreAFaultOfTheirFirstLine)
{
    const std::string utf16("\xFF\xFE"
                            "3\0"
                            "0\0,\0"
                            "1\0\n\0",
                            12);
    EXPECT_EQ("line 1: the radius of the zone is no number", Fault(utf16));
}

TEST(Readings, AFaultIsToldInBothLanguagesWithItsLine)
{
    const ReadingsParse parse = ParseReadingLines("30,1\n20,2\n", kOuter, 11);
    ASSERT_TRUE(parse.fault);
    EXPECT_EQ("line 12: the radii of the zones must rise", FaultText(*parse.fault, kEnglish));
    EXPECT_EQ("Zeile 12: die Radien der Zonen m\xFCssen steigen", FaultText(*parse.fault, kGerman));
    EXPECT_EQ(1u, parse.zones.size());
}

} // namespace

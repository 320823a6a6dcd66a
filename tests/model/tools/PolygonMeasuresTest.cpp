#include "model/tools/PolygonMeasures.h"
#include "model/tools/SectorMeasures.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"

#include <gtest/gtest.h>

namespace {

TEST(PolygonMeasures, MeasuresTheEightSidesOfTheStart)
{
    const PolygonMeasures m = MeasurePolygon({225, 6.5, kPolygonStartType});
    EXPECT_EQ(8, m.nSides);
    EXPECT_NEAR(0.785398, m.dAngle, 1e-6);
    EXPECT_NEAR(121.769, m.dInnerRadius, 5e-4);
    EXPECT_NEAR(7.036, m.dCornerWall, 5e-4);
    EXPECT_NEAR(128.805, m.dOuterRadius, 1e-3);
    EXPECT_NEAR(9.1924, m.dOverhang, 1e-4);
    EXPECT_NEAR(93.198, m.dInnerSide, 5e-4);
    EXPECT_NEAR(98.583, m.dOuterSide, 5e-4);
    EXPECT_NEAR(111.583, m.dBoard, 5e-4);
}

TEST(PolygonMeasures, MeasuresASquareByItsGeometry)
{
    const PolygonMeasures m = MeasurePolygon({200, 10, 1});
    EXPECT_NEAR(141.42136, m.dInnerRadius, 1e-4);
    EXPECT_NEAR(14.142136, m.dCornerWall, 1e-5);
    EXPECT_NEAR(200, m.dInnerSide, 1e-6);
    EXPECT_NEAR(220, m.dOuterSide, 1e-6);
    EXPECT_NEAR(220, m.dBoard, 1e-5);
}

TEST(PolygonMeasures, RefusesBoardsThickerThanTheRadius)
{
    EXPECT_STREQ("He, I can not draw that!", PolygonRefusal({10, 5.01, 5}, kEnglish));
    EXPECT_STREQ("He, das kann ich nicht zeichnen!", PolygonRefusal({10, 5.01, 5}, kGerman));
    EXPECT_EQ(nullptr, PolygonRefusal({10, 5, 5}, kEnglish)) << "exactly half the diameter";
    EXPECT_EQ(nullptr, PolygonRefusal({0, 0, 5}, kEnglish));
}

TEST(PolygonMeasures, ListsTenTypes)
{
    const char* const kNames[] = {"Dreieck", "Viereck", "Fünfeck"_cp1252, "Sechseck", "Siebenseck",
                                  "Achteck", "Neuneck", "Zehneck",        "Elfeck",   "Zwölfeck"_cp1252};
    for (std::int32_t i = 0; i < kPolygonTypeCount; ++i) {
        EXPECT_STREQ(kNames[i], PolygonTypeName(i));
    }
    EXPECT_EQ(nullptr, PolygonTypeName(10));
    EXPECT_EQ(nullptr, PolygonTypeName(-1));
}

TEST(SectorMeasures, MeasuresTheSegment)
{
    struct Case {
        double dValue, dSagitta, dChord;
    };
    for (const Case& c : {Case{90, 14.64466, 70.71068}, Case{360, 100, 0}, Case{0, 0, 0}, Case{180, 50, 100},
                          Case{60, 6.69873, 50}}) {
        const SectorMeasures m = MeasureSector({100, c.dValue, kSectorAngleType});
        EXPECT_NEAR(c.dSagitta, m.dSagitta, 1e-4) << c.dValue;
        EXPECT_NEAR(c.dChord, m.dChord, 1e-4) << c.dValue;
        EXPECT_EQ(50, m.dRadius);
    }
}

TEST(SectorMeasures, TellsTheFirstOfItsRefusals)
{
    struct Case {
        SectorInput input;
        const char* pszEnglish;
        const char* pszGerman;
    };
    const Case kCases[] = {{{0, 400, 0}, "Sorry, only Angles, yet.", "Sorry, bis jetzt nur Winkel."},
                           {{100, 90, 1}, "Sorry, only Angles, yet.", "Sorry, bis jetzt nur Winkel."},
                           {{100, 90, -1}, "Sorry, only Angles, yet.", "Sorry, bis jetzt nur Winkel."},
                           {{0, -0.1, 2},
                            "Sorry, only Angles between 0° und 360°."_cp1252,
                            "Sorry, nur Winkel zwischen 0° und 360°."_cp1252},
                           {{100, 360.1, 2},
                            "Sorry, only Angles between 0° und 360°."_cp1252,
                            "Sorry, nur Winkel zwischen 0° und 360°."_cp1252},
                           {{0, 90, 2}, "Error in Diameter.", "Fehlerhafter Durchmesser."},
                           {{-1, 90, 2}, "Error in Diameter.", "Fehlerhafter Durchmesser."}};
    for (const Case& c : kCases) {
        EXPECT_STREQ(c.pszEnglish, SectorRefusal(c.input, kEnglish));
        EXPECT_STREQ(c.pszGerman, SectorRefusal(c.input, kGerman));
    }
    EXPECT_EQ(nullptr, SectorRefusal({100, 0, 2}, kEnglish));
    EXPECT_EQ(nullptr, SectorRefusal({100, 360, 2}, kEnglish));
}

} // namespace

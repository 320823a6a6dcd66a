#include "model/optics/FigureTexts.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

/// A 200 mm mirror of 1200 mm whose readings stand off those of a paraboloid by these, mm.
Figure FigureOff(double first, double second, double third, double fourth)
{
    std::vector<ZoneMean> zones{{25, first}, {50, second}, {75, third}, {95, fourth}};
    for (ZoneMean& zone : zones) {
        zone.reading += zone.radius * zone.radius / 4800;
    }
    return *ReduceFigure(200, 1200, zones, {});
}

TEST(FigureTexts, RowsInTheOrderOfReading)
{
    // A sphere of 200 mm and 1200 mm held against a paraboloid: 200 / (2048 * 216) mm = 452.1 nm.
    const std::vector<ZoneMean> zones{{30, 0}, {60, 0}, {90, 0}};
    const Figure sphere = *ReduceFigure(200, 1200, zones, {});
    const ListRows rows = FigureRows(sphere, kEnglish);
    ASSERT_EQ(6u, rows.size());
    EXPECT_EQ((ListRow{"Wavefront PV", "452.1 nm (0.822 lambda)"}), rows[0]);
    EXPECT_EQ((ListRow{"Wavefront RMS", "134.79 nm"}), rows[1]); // 452.11 / 3.354
    EXPECT_EQ((ListRow{"Strehl ratio", "0.093"}), rows[2]);      // exp(-(1.5400)^2)
    // Best focus where half of the area is inside, 5000 / 4800 mm off; at 90 mm it is 3100 / 4800.
    EXPECT_EQ((ListRow{"Largest transverse aberration", "6.02 Airy"}), rows[3]);
    EXPECT_EQ((ListRow{"Conic constant", "0.000"}), rows[4]);
    EXPECT_EQ((ListRow{"Best focus", "-1.042 mm"}), rows[5]);
    EXPECT_EQ("Wellenfront PV", FigureRows(sphere, kGerman)[0][0]);
    EXPECT_EQ("Gr\xF6\xDF"
              "te Querabweichung",
              FigureRows(sphere, kGerman)[3][0]);
    EXPECT_EQ("Wavefront: PV 452.1 nm, RMS 134.79 nm, Strehl 0.093", FigureTitle(sphere, kEnglish));
}

TEST(FigureTexts, AVerdictForEachLimit)
{
    const std::string good = FigureVerdict(FigureOff(0, 0, 0, 0), kEnglish);
    EXPECT_EQ(
        "The wavefront keeps to lambda/4 (PV 0.00 lambda), the Strehl ratio of 1.00 reaches 0.8; no zone "
        "stands high.",
        good);
    const std::string bad = FigureVerdict(FigureOff(-0.6, -0.6, 0.6, 0.6), kEnglish);
    EXPECT_EQ(0u, bad.find("The wavefront exceeds lambda/4 (PV 0.")) << bad;
    EXPECT_NE(std::string::npos, bad.find("stays below 0.8; zone 3 stands ")) << bad;
    const std::string german = FigureVerdict(FigureOff(-0.6, -0.6, 0.6, 0.6), kGerman);
    EXPECT_EQ(0u, german.find("Die Wellenfront \xFC"
                              "berschreitet lambda/4 (PV 0."))
        << german;
    EXPECT_NE(std::string::npos, german.find("bleibt unter 0,8; Zone 3 steht auf der Wellenfront "))
        << german;
}

TEST(FigureTexts, TheHighestZoneIsToldOnTheWavefrontAndOnTheGlass)
{
    const Figure figure = FigureOff(-0.1, -0.1, 0.1, 0.1);
    double height = 0;
    for (const FigureZone& zone : figure.zones) {
        height = std::max(height, figure.wavefront.At(zone.radius));
    }
    EXPECT_EQ(figure.wavefront.At(75), height);
    char text[80];
    std::snprintf(text, sizeof text, "zone 3 stands %.0f nm high on the wavefront, %.0f nm on the glass.",
                  height, height / 2);
    EXPECT_NE(std::string::npos, FigureVerdict(figure, kEnglish).find(text)) << text;
}

TEST(FigureTexts, WithoutNumbersThereIsNoVerdict)
{
    const std::vector<ZoneMean> zones{{30, 1e308}, {60, -1e308}, {90, 1e308}};
    EXPECT_EQ("The readings give no figure.", FigureVerdict(*ReduceFigure(200, 1200, zones, {}), kEnglish));
}

} // namespace

#include "model/optics/FoucaultZones.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

ZoneFields Fields(const char* wanted, std::int32_t centre_method = kCarlin,
                  std::int32_t light_source = kMovingSource, std::int32_t mask_type = kCouderMask)
{
    ZoneFields fields;
    fields.wanted_zones = wanted;
    fields.view = {mask_type, centre_method, light_source};
    return fields;
}

ListRows RowsOf(const ZoneTable& table)
{
    ListRows rows;
    for (std::int32_t i = 0; i < table.RowCount(); ++i) {
        rows.push_back(table.Row(i));
    }
    return rows;
}

std::vector<std::string> TitlesOf(const ZoneTable& table)
{
    std::vector<std::string> titles;
    for (const ListColumn& column : table.Columns()) {
        titles.emplace_back(column.title.In(kEnglish));
    }
    return titles;
}

TEST(FoucaultZones, OptimumOfA200mmMirror)
{
    EXPECT_NEAR(3.3208242315277245, OptimumZones(200, 1200, 5, 0), 1e-12);
    const ZoneFields opened = OpenZoneFields(200, 1200);
    EXPECT_EQ("3.3", OptimumZonesText(opened, 200, 1200));
    EXPECT_EQ("3", opened.wanted_zones);
    EXPECT_EQ("5", opened.centre_percent);
    EXPECT_EQ("0", opened.edge_width);
    EXPECT_EQ(kCouderMask, opened.view.mask_type);
    EXPECT_EQ(kCarlin, opened.view.centre_method);
    EXPECT_EQ(kMovingSource, opened.view.light_source);
    EXPECT_EQ(3, CalculatedZones(opened, 200, 1200).RowCount());
}

TEST(FoucaultZones, TheProposedNumberIsCutAndNotRounded)
{
    // 10 per cent and 5 mm less: 2.84 zones, shown as "2.8", proposed as 2.
    ZoneFields fields;
    fields.centre_percent = "10";
    fields.edge_width = "5";
    EXPECT_EQ("2.8", OptimumZonesText(fields, 200, 1200));
    EXPECT_EQ("2", ProposedZonesText(fields, 200, 1200));
}

TEST(FoucaultZones, TheOptimumFollowsTheTextsAndTheWantedNumberDoesNot)
{
    ZoneFields fields = OpenZoneFields(200, 1200);
    fields.centre_percent = "10";
    fields.edge_width = "5";
    EXPECT_EQ("2.8", OptimumZonesText(fields, 200, 1200));
    EXPECT_EQ(3, CalculatedZones(fields, 200, 1200).RowCount());
}

TEST(FoucaultZones, BoundariesLieOnASquareRootScale)
{
    EXPECT_DOUBLE_EQ(std::sqrt(0.05) * 100, ZoneRadius(200, 3, 0, 5));
    EXPECT_DOUBLE_EQ(100, ZoneRadius(200, 3, 3, 5));
    // Rings of equal area.
    const double area = 1e4 * 0.95 / 3;
    for (int i = 0; i < 3; ++i) {
        const double inner = ZoneRadius(200, 3, i, 5);
        const double outer = ZoneRadius(200, 3, i + 1, 5);
        EXPECT_NEAR(area, outer * outer - inner * inner, 1e-9) << i;
    }
}

TEST(FoucaultZones, RowsOfACouderMaskByEachAuthorAndSource)
{
    const struct {
        std::int32_t method;
        std::int32_t source;
        ListRows rows;
    } cases[] = {
        {kCarlin,
         kMovingSource,
         {{"1", "22.3607 mm", "60.5530 mm", "43.6005 mm", "0.0000 mm"},
          {"2", "60.5530 mm", "82.6640 mm", "72.0339 mm", "0.6850 mm"},
          {"3", "82.6640 mm", "100.0000 mm", "91.5374 mm", "1.3496 mm"}}},
        {kCouder,
         kMovingSource,
         {{"1", "22.3607 mm", "60.5530 mm", "45.6435 mm", "0.0000 mm"},
          {"2", "60.5530 mm", "82.6640 mm", "72.4569 mm", "0.6597 mm"},
          {"3", "82.6640 mm", "100.0000 mm", "91.7424 mm", "1.3194 mm"}}},
        {kTexereau,
         kFixedSource,
         {{"1", "22.3607 mm", "60.5530 mm", "41.4568 mm", "0.0000 mm"},
          {"2", "60.5530 mm", "82.6640 mm", "71.6085 mm", "1.4205 mm"},
          {"3", "82.6640 mm", "100.0000 mm", "91.3320 mm", "2.7595 mm"}}},
    };
    for (const auto& one : cases) {
        EXPECT_EQ(one.rows, RowsOf(CalculatedZones(Fields("3", one.method, one.source), 200, 1200)))
            << one.method;
    }
}

TEST(FoucaultZones, ABrokenNumberDividesByItselfButListsWholeZones)
{
    const ListRows rows = RowsOf(CalculatedZones(Fields("3.7"), 200, 1200));
    ASSERT_EQ(3u, rows.size());
    EXPECT_EQ((ListRow{"3", "75.0675 mm", "90.5688 mm", "82.9993 mm", "1.0920 mm"}), rows[2]);
}

TEST(FoucaultZones, AnEdgeMakesTheDividedSurfaceSmaller)
{
    ZoneFields fields = Fields("2");
    fields.centre_percent = "0";
    fields.edge_width = "10";
    const ListRows expected{{"1", "0.0000 mm", "63.6396 mm", "38.9711 mm", "0.0000 mm"},
                            {"2", "63.6396 mm", "90.0000 mm", "77.3831 mm", "0.9311 mm"}};
    EXPECT_EQ(expected, RowsOf(CalculatedZones(fields, 200, 1200)));
}

TEST(FoucaultZones, CouderIsTheLargestCentreAndTexereauTheSmallest)
{
    for (int i = 0; i < 20; ++i) {
        const ZoneEdges edges{ZoneRadius(300, 20, i, 5), ZoneRadius(300, 20, i + 1, 5)};
        EXPECT_GT(ZoneCentre(edges, kCouder), ZoneCentre(edges, kCarlin)) << i;
        EXPECT_GT(ZoneCentre(edges, kCarlin), ZoneCentre(edges, kTexereau)) << i;
        EXPECT_NEAR((edges.inner + edges.outer) / 2, ZoneCentre(edges, kTexereau), 1e-9) << i;
    }
}

TEST(FoucaultZones, AFixedSourceDoublesEveryShift)
{
    const auto shiftOf = [](const ListRow& row) { return std::stod(row.back()); };
    const ListRows moving = RowsOf(CalculatedZones(Fields("9", kCarlin, kMovingSource), 400, 1800));
    const ListRows fixed = RowsOf(CalculatedZones(Fields("9", kCarlin, kFixedSource), 400, 1800));
    for (std::size_t i = 1; i < 9; ++i) {
        EXPECT_GT(shiftOf(moving[i]), 0);
        EXPECT_NEAR(2 * shiftOf(moving[i]), shiftOf(fixed[i]), 2e-4) << i;
    }
    EXPECT_EQ("0.0000 mm", fixed[0].back());
}

TEST(FoucaultZones, ColumnsOfTheCouderMask)
{
    const auto columns = CalculatedZones(Fields("3"), 200, 1200).Columns();
    const struct {
        const char* title;
        int width;
        bool right;
    } expected[] = {{"Zone", 40, false},
                    {"Inner Radius", 80, true},
                    {"Outer Radius", 80, true},
                    {"Corrected Center Radius (Carlin)", 130, true},
                    {"Schnittweitendifferenz", 120, true}};
    ASSERT_EQ(std::size(expected), columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i) {
        EXPECT_STREQ(expected[i].title, columns[i].title.In(kEnglish));
        EXPECT_STREQ(expected[i].title, columns[i].title.In(kGerman));
        EXPECT_EQ(expected[i].width, columns[i].width);
        EXPECT_EQ(expected[i].right, columns[i].right_aligned);
    }
}

TEST(FoucaultZones, ThePinstickHasNoEdges)
{
    const ZoneTable table =
        CalculatedZones(Fields("3", kTexereau, kMovingSource, kEverestPinstick), 200, 1200);
    EXPECT_EQ((std::vector<std::string>{"Zone", "Center Radius (Texereau)", "Schnittweitendifferenz"}),
              TitlesOf(table));
    EXPECT_EQ((ListRow{"3", "91.3320 mm", "1.3798 mm"}), table.Row(2));
    EXPECT_EQ("Center Radius (Couder)",
              TitlesOf(CalculatedZones(Fields("3", kCouder, kMovingSource, kEverestPinstick), 200, 1200))[1]);
}

TEST(FoucaultZones, ACommaEndsANumberAndATextThatIsNoneIsZero)
{
    EXPECT_EQ(3, CalculatedZones(Fields("3,9"), 200, 1200).RowCount());
    EXPECT_EQ("60.5530 mm", CalculatedZones(Fields("3,9"), 200, 1200).Row(0)[2]);
    ZoneFields fields = Fields("2");
    fields.centre_percent = "none";
    fields.edge_width = "";
    EXPECT_EQ("0.0000 mm", CalculatedZones(fields, 200, 1200).Row(0)[1]);
    EXPECT_EQ("100.0000 mm", CalculatedZones(fields, 200, 1200).Row(1)[2]);
}

TEST(FoucaultZones, NumbersWithoutZones)
{
    for (const char* wanted : {"", "0", "0.99", "-1", "-1e9", "abc", "1e999", "-1e999", "inf", "nan"}) {
        const ZoneTable table = CalculatedZones(Fields(wanted), 200, 1200);
        EXPECT_EQ(0, table.RowCount()) << wanted;
        EXPECT_EQ(5u, table.Columns().size()) << wanted;
    }
}

TEST(FoucaultZones, AThousandMillionZonesAreComputedWhereLookedAt)
{
    const ZoneTable table = CalculatedZones(Fields("1e9"), 200, 1200);
    ASSERT_EQ(1'000'000'000, table.RowCount());
    EXPECT_EQ("1", table.Row(0)[0]);
    EXPECT_EQ("22.3607 mm", table.Row(0)[1]);
    EXPECT_EQ("1000000000", table.Row(999'999'999)[0]);
    EXPECT_EQ("100.0000 mm", table.Row(999'999'999)[2]);
    // Beyond 32 bits the list ends at the largest number that a row can bear.
    EXPECT_EQ(2147483647, CalculatedZones(Fields("1e300"), 200, 1200).RowCount());
    EXPECT_EQ("2147483647", CalculatedZones(Fields("1e300"), 200, 1200).Row(2147483646)[0]);
}

TEST(FoucaultZones, AMirrorWithoutFocalLengthHasNoOptimumAndNoZones)
{
    const ZoneFields infinite = OpenZoneFields(200, 0);
    EXPECT_EQ(0, CalculatedZones(infinite, 200, 0).RowCount());
    const ZoneFields undefined = OpenZoneFields(0, 0);
    EXPECT_EQ(0, CalculatedZones(undefined, 0, 0).RowCount());
    const ZoneFields negative = OpenZoneFields(200, -1200);
    EXPECT_EQ(0, CalculatedZones(negative, 200, -1200).RowCount());
}

TEST(FoucaultZones, MoreThanTheWholeAreaLeftOut)
{
    ZoneFields fields;
    fields.centre_percent = "110"; // -0.3 zones
    EXPECT_EQ("0", ProposedZonesText(fields, 200, 1200));
    fields.wanted_zones = "3";
    EXPECT_EQ(3u, RowsOf(CalculatedZones(fields, 200, 1200)).size());
}

} // namespace

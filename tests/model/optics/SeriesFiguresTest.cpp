#include "model/optics/SeriesFigures.h"

#include <gtest/gtest.h>

namespace {

/// A series of a 200 mm mirror of 1200 mm that reads `off` mm more at its second zone than a paraboloid.
ReadingSeries Series(const char* name, double off, std::int32_t source = kMovingSource)
{
    ReadingSeries series;
    series.name = name;
    series.light_source = source;
    const double factor = source == kFixedSource ? 2 : 1;
    int i = 0;
    for (const double radius : {30.0, 60.0, 90.0}) {
        const double reading = (radius * radius / 4800 + (i++ == 1 ? off : 0)) * factor;
        series.zones.push_back({std::to_string(radius), {std::to_string(reading)}});
    }
    return series;
}

ReadingBook Book(std::vector<ReadingSeries> series)
{
    ReadingBook book;
    book.series = std::move(series);
    return book;
}

const std::vector<std::size_t> kBoth{0, 1};

TEST(SeriesFigures, StandSideBySideOrAreAveraged)
{
    const ReadingBook book = Book({Series("A", 0.2), Series("B", -0.2, kFixedSource)});
    const auto single = FiguresOfSeries(book, kBoth, false, 200, 1200, kEnglish);
    ASSERT_EQ(2u, single.size());
    EXPECT_EQ("A", single[0].name);
    ASSERT_TRUE(single[0].figure && single[1].figure);
    EXPECT_GT(single[0].figure->pv, 20);
    EXPECT_NEAR(single[0].figure->pv, single[1].figure->pv, 1e-2); // one the other's mirror image
    const auto mean = FiguresOfSeries(book, kBoth, true, 200, 1200, kEnglish);
    ASSERT_EQ(1u, mean.size());
    EXPECT_EQ("Mean of 2 series", mean[0].name);
    EXPECT_NEAR(0, mean[0].figure->pv, 1e-2);
    EXPECT_EQ("Mittel aus 2 Messreihen", FiguresOfSeries(book, kBoth, true, 200, 1200, kGerman)[0].name);
    EXPECT_EQ("B", FiguresOfSeries(book, std::vector<std::size_t>{1, 7}, true, 200, 1200, kEnglish)[0].name);
    EXPECT_TRUE(FiguresOfSeries(book, {}, true, 200, 1200, kEnglish).empty());
}

TEST(SeriesFigures, AreHeldAgainstTheBooksConicAtItsWavelength)
{
    ReadingBook book = Book({Series("A", 0)});
    book.conic = 0;
    book.wavelength = 500;
    const auto figures = FiguresOfSeries(book, kBoth, false, 200, 1200, kEnglish);
    const double pv = 200.0 / (2048 * 216) * 1e6; // a paraboloid held against a sphere
    EXPECT_NEAR(pv, figures[0].figure->pv, 1e-2);
    EXPECT_NEAR(pv / 500, figures[0].figure->pv_waves, 1e-4);
}

TEST(SeriesFigures, ASeriesWithAFaultIsToldAndLeftOutOfTheMean)
{
    ReadingBook book = Book({Series("A", 0), Series("B", 0), Series("C", 0)});
    book.series[1].zones[2].readings[0] = "x";
    const std::vector<std::size_t> all{0, 1, 2};
    const auto single = FiguresOfSeries(book, all, false, 200, 1200, kEnglish);
    EXPECT_FALSE(single[1].figure);
    EXPECT_EQ("zone 3, reading 1: this is no number", single[1].fault);
    const auto mean = FiguresOfSeries(book, all, true, 200, 1200, kEnglish);
    EXPECT_EQ("Mean of 2 series", mean[0].name);
    EXPECT_TRUE(mean[0].figure);
    EXPECT_EQ("B: zone 3, reading 1: this is no number", mean[0].fault);
    const std::string verdict = SeriesVerdict(single, kEnglish);
    EXPECT_EQ(0u, verdict.find("A: The wavefront keeps to lambda/4"));
    EXPECT_NE(std::string::npos, verdict.find("\nB: zone 3, reading 1: this is no number\nC: The wavefront"));
    const ListRows rows = SeriesResultRows(single, kEnglish);
    EXPECT_EQ("\x96", rows[0][2]);
    EXPECT_EQ(4u, rows[0].size());
    EXPECT_EQ((std::vector<std::string>{"Eigenschaft", "A", "B", "C"}), SeriesResultTitles(single, kGerman));
    EXPECT_EQ("the mirror has no diameter or no focal length",
              FiguresOfSeries(book, kBoth, false, 0, 1200, kEnglish)[0].fault);
}

TEST(SeriesFigures, ARowTellsSourceMaskAndTheReadingsThatCount)
{
    ReadingSeries series = Series("A", 0, kFixedSource);
    series.date = "2026-11-21";
    series.mask_type = kEverestPinstick;
    series.zones[0].readings = {"1", "", "x", "2"};
    EXPECT_EQ((ListRow{"A", "2026-11-21", "fixed", "Everest pinstick, 3 zones", "4"}),
              SeriesRow(series, kEnglish));
    EXPECT_EQ("fest", SeriesRow(series, kGerman)[2]);
    EXPECT_EQ("Couder Maske, 5 Zonen", MaskName(kCouderMask, 5, kGerman));
}

} // namespace

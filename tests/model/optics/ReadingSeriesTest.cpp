#include "model/optics/ReadingSeries.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr double kOuter = 100;

ReadingSeries Sample()
{
    ReadingSeries series;
    series.name = "M\xE4rz";
    series.date = "2026-03-01";
    series.light_source = kFixedSource;
    series.mask_type = kEverestPinstick;
    series.zones = {{"30", {"0.1", "0.3"}}, {"60", {"0.5"}}, {"90", {"1", "1.1", "1.2"}}};
    return series;
}

std::string FaultOf(const ReadingSeries& series, int language = kEnglish)
{
    const SeriesReading reading = ReadSeries(series, kOuter);
    return reading.fault ? SeriesFaultText(*reading.fault, language) : "";
}

TEST(ReadingSeries, ANewOneHasTheZonesOfTheCurrentMask)
{
    const CouderMask mask(1200, 200, 5, 0, kEverestPinstick, 3);
    ZoneFields fields;
    fields.wanted_zones = "7";
    const ReadingSeries series = NewSeries({}, &mask, fields, 200, "2026-11-21", kEnglish);
    EXPECT_EQ("Series 1", series.name);
    EXPECT_EQ("2026-11-21", series.date);
    EXPECT_EQ(kEverestPinstick, series.mask_type);
    EXPECT_EQ(kMovingSource, series.light_source);
    ASSERT_EQ(3u, series.zones.size());
    EXPECT_EQ("43.6005", series.zones[0].radius); // as the list of the mask shows it
    EXPECT_EQ("91.5374", series.zones[2].radius);
    EXPECT_TRUE(series.zones[0].readings.empty());
}

TEST(ReadingSeries, WithoutAMaskItHasThoseOfTheZoneCalculator)
{
    ZoneFields fields;
    fields.wanted_zones = "4";
    fields.edge_width = "2";
    fields.view = {kCouderMask, kCouder, kFixedSource};
    const CouderMask none(1200, 200, 5, 0, kEverestPinstick, 0);
    for (const CouderMask* mask : {static_cast<const CouderMask*>(nullptr), &none}) {
        const ReadingSeries series = NewSeries({}, mask, fields, 200, "", kGerman);
        EXPECT_EQ("Messreihe 1", series.name);
        EXPECT_EQ(kFixedSource, series.light_source);
        ASSERT_EQ(4u, series.zones.size());
        const ZoneTable table = CalculatedZones(fields, 200, 1200);
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(table.Row(i)[3], series.zones[static_cast<std::size_t>(i)].radius + " mm");
        }
    }
    for (const auto& [wanted, count] : {std::pair{"1000000000", 64u}, {"0", 0u}, {"-3", 0u}, {"x", 0u}}) {
        fields.wanted_zones = wanted;
        EXPECT_EQ(count, NewSeries({}, nullptr, fields, 200, "", kGerman).zones.size()) << wanted;
    }
}

TEST(ReadingSeries, NamesAreFree)
{
    ReadingBook book;
    book.series.resize(2);
    book.series[0].name = "Series 1";
    book.series[1].name = "Series 1 (2)";
    EXPECT_EQ("Series 2", NewSeries(book, nullptr, {}, 200, "", kEnglish).name);
    const ReadingSeries copy = CopyOfSeries(book, book.series[0]);
    EXPECT_EQ("Series 1 (3)", copy.name);
    ReadingSeries original = Sample();
    EXPECT_EQ(original.zones, CopyOfSeries(book, original).zones);
}

TEST(ReadingSeries, ARenamedOneHasANameOfItsOwn)
{
    ReadingBook book;
    book.series.resize(2);
    book.series[0].name = "A";
    book.series[1].name = "B";
    EXPECT_TRUE(RenameSeries(book, 0, " second\tpolish "));
    EXPECT_EQ("second polish", book.series[0].name);
    EXPECT_TRUE(RenameSeries(book, 0, "second polish"));
    for (const char* name : {"", "  ", "B"}) {
        EXPECT_FALSE(RenameSeries(book, 0, name)) << name;
    }
    EXPECT_EQ("second polish", book.series[0].name);
    EXPECT_FALSE(RenameSeries(book, 2, "C"));
}

TEST(ReadingSeries, CommaAndPointBothReadAndWrongTextStays)
{
    ReadingSeries series = Sample();
    EXPECT_TRUE(StoreCell(series, 0, 1, " 0,25 "));
    EXPECT_EQ("0.25", CellOf(series, 0, 1));
    EXPECT_EQ(nullptr, CellFault(series, 0, 1, kOuter));
    EXPECT_TRUE(StoreCell(series, 0, 1, "0.2x"));
    EXPECT_EQ("0.2x", CellOf(series, 0, 1));
    ASSERT_NE(nullptr, CellFault(series, 0, 1, kOuter));
    EXPECT_EQ("zone 1, reading 1: this is no number", FaultOf(series));
    EXPECT_EQ("Zone 1, Messwert 1: das ist keine Zahl", FaultOf(series, kGerman));
    EXPECT_TRUE(StoreCell(series, 0, 1, "1,2,3"));
    EXPECT_EQ("1,2,3", CellOf(series, 0, 1));
    EXPECT_NE(nullptr, CellFault(series, 0, 1, kOuter));
}

TEST(ReadingSeries, CellsMakeRoomUpToTheLimits)
{
    ReadingSeries series = Sample();
    EXPECT_TRUE(StoreCell(series, 1, 4, "0.7"));
    EXPECT_EQ((std::vector<std::string>{"0.5", "", "", "0.7"}), series.zones[1].readings);
    EXPECT_EQ(4u, RunsOf(series));
    EXPECT_EQ("", CellOf(series, 0, 4));
    EXPECT_TRUE(StoreCell(series, 1, 4, ""));
    EXPECT_EQ((std::vector<std::string>{"0.5"}), series.zones[1].readings); // no empty end
    EXPECT_TRUE(StoreCell(series, 63, 100, "1"));
    EXPECT_EQ(64u, series.zones.size());
    const ReadingSeries before = series;
    EXPECT_FALSE(StoreCell(series, 64, 1, "1"));
    EXPECT_FALSE(StoreCell(series, 0, 101, "1"));
    EXPECT_EQ(before, series);
}

TEST(ReadingSeries, ABlockOfASpreadsheetIsPastedWholeOrNotAtAll)
{
    ReadingSeries series = Sample();
    EXPECT_TRUE(PasteBlock(series, 1, 2, "1,5\t1.6\r\n2,5\t\r\n"));
    EXPECT_EQ((std::vector<std::string>{"0.5", "1.5", "1.6"}), series.zones[1].readings);
    EXPECT_EQ((std::vector<std::string>{"1", "2.5"}), series.zones[2].readings);
    EXPECT_EQ(3u, series.zones.size());
    const ReadingSeries before = series;
    std::string tooMany = "1\n";
    for (int i = 0; i < 64; ++i) {
        tooMany += "2\n";
    }
    EXPECT_FALSE(PasteBlock(series, 0, 1, tooMany));
    EXPECT_EQ(before, series);
    EXPECT_TRUE(PasteBlock(series, 0, 0, "20\t5\n40\t6\n70\t7\n95\t8"));
    EXPECT_EQ(4u, series.zones.size());
    EXPECT_EQ("95", series.zones[3].radius);
}

TEST(ReadingSeries, MeanAndSpreadOfTheReadingsThatAreNumbers)
{
    const ZoneSpread spread = SpreadOf({"30", {"1", "", "2", "x", "4.5"}});
    EXPECT_EQ(3u, spread.count);
    EXPECT_DOUBLE_EQ(2.5, spread.mean);
    EXPECT_DOUBLE_EQ(std::sqrt((2.25 + 0.25 + 4) / 2), spread.spread);
    EXPECT_EQ(0, SpreadOf({"30", {"1"}}).spread);
    EXPECT_EQ(0u, SpreadOf({"30", {}}).count);
}

TEST(ReadingSeries, RadiiAreMarkedThatCannotBe)
{
    ReadingSeries series = Sample();
    EXPECT_EQ("", FaultOf(series));
    series.zones[1].radius = "30";
    EXPECT_EQ("zone 2, radius: the radii of the zones must rise", FaultOf(series));
    series.zones[1].radius = "";
    EXPECT_EQ("zone 2, radius: the radius of the zone is no number", FaultOf(series));
    EXPECT_EQ(nullptr, CellFault(series, 2, 0, kOuter)); // held against the last radius that can be read
    series.zones[2].radius = "29";
    EXPECT_NE(nullptr, CellFault(series, 2, 0, kOuter));
    series = Sample();
    series.zones[2].radius = "100.5";
    EXPECT_EQ("zone 3, radius: the zone lies beyond the edge of the mirror", FaultOf(series));
    series.zones[0].radius = "0";
    EXPECT_EQ("zone 1, radius: the radius of a zone must be above 0", FaultOf(series));
}

TEST(ReadingSeries, AnUnfinishedSeriesIsToldWhereItStops)
{
    ReadingSeries series = Sample();
    series.zones[1].readings.clear();
    EXPECT_EQ("zone 2, reading 1: the zone has no reading", FaultOf(series));
    series = Sample();
    series.zones.pop_back();
    EXPECT_EQ("zone 3, radius: fewer than 3 zones", FaultOf(series));
    EXPECT_EQ("zone 1, radius: fewer than 3 zones", FaultOf({}));
    const SeriesReading reading = ReadSeries(Sample(), kOuter);
    ASSERT_EQ(3u, reading.zones.size());
    EXPECT_DOUBLE_EQ(0.2, reading.zones[0].reading);
    EXPECT_EQ(90, reading.zones[2].radius);
}

TEST(ReadingBook, StandsBesideTheDesign)
{
    EXPECT_EQ("/a/b.foucault.csv", ReadingsPath("/a/b.orreva.xml"));
    EXPECT_EQ("b.foucault.csv", ReadingsPath("b.xml"));
    EXPECT_EQ("b.txt.foucault.csv", ReadingsPath("b.txt"));
}

TEST(ReadingBook, IsAFileThatASpreadsheetOpensAndASeriesIsAFileOfReadings)
{
    ReadingBook book;
    book.series.push_back(Sample());
    EXPECT_EQ("# Orreva: readings of the knife edge\n"
              "# conic: -1\n"
              "# wavelength: 550\n"
              "# series: M\xC3\xA4rz\n"
              "# date: 2026-03-01\n"
              "# source: fixed\n"
              "# mask: everest\n"
              "radius,reading 1,reading 2,reading 3\n"
              "30,0.1,0.3\n"
              "60,0.5\n"
              "90,1,1.1,1.2\n",
              BookText(book));
    const ReadingsParse parse = ParseReadings(BookText(book), kOuter);
    EXPECT_FALSE(parse.fault);
    ASSERT_EQ(3u, parse.zones.size());
    EXPECT_EQ((std::vector<double>{0.1, 0.3}), parse.zones[0].readings);
}

TEST(ReadingBook, ComesBackWithEveryCellAsItWasTyped)
{
    ReadingBook book;
    book.conic = -0.95;
    book.wavelength = 546.1;
    book.series = {Sample(), {}, Sample()};
    book.series[1].name = "halb, fertig; \"x\" y";
    book.series[1].zones = {
        {"#3", {"", "1,2,3", "a;b", "\"", "say \"no\""}}, {"", {}}, {"radius 1", {}}, {"9\"", {"1"}}};
    book.series[2].name = "leer";
    book.series[2].zones.clear();
    const auto back = ParseBook(BookText(book));
    ASSERT_TRUE(back);
    EXPECT_EQ(book, *back);
    EXPECT_EQ(ReadingBook(), ParseBook(BookText({})));
}

TEST(ReadingBook, IsReadAsASpreadsheetSavesItAgain)
{
    const auto book = ParseBook("\xEF\xBB\xBF# Orreva: readings of the knife edge;;;\r\n# conic: -1;;;\r\n"
                                "\"# series: A\";;;\r\n# source: fixed;;;\r\nradius;reading 1;;\r\n"
                                "\"30\";0.1;;\r\n60;0.2;;\r\n\r\n90;0.3;0.4;\r\n");
    ASSERT_TRUE(book);
    ASSERT_EQ(1u, book->series.size());
    EXPECT_EQ("A", book->series[0].name);
    EXPECT_EQ(kFixedSource, book->series[0].light_source);
    EXPECT_EQ((std::vector<SeriesZone>{{"30", {"0.1"}}, {"60", {"0.2"}}, {"90", {"0.3", "0.4"}}}),
              book->series[0].zones);
}

TEST(ReadingBook, ControlCharactersComeInAsBlanks)
{
    const auto book = ParseBook("# Orreva: readings of the knife edge\n# series: \x12 A\x01"
                                "B\n\x02 30,\x03"
                                "1\n");
    ASSERT_TRUE(book);
    ASSERT_EQ(1u, book->series.size());
    EXPECT_EQ("A B", book->series[0].name);
    EXPECT_EQ((SeriesZone{"30", {" 1"}}), book->series[0].zones[0]);
}

TEST(ReadingBook, ADamagedOneIsNone)
{
    ReadingBook book;
    book.series.push_back(Sample());
    const std::string good = BookText(book);
    EXPECT_TRUE(ParseBook(good));
    EXPECT_FALSE(ParseBook(""));
    EXPECT_FALSE(ParseBook("<telescope>"));
    EXPECT_FALSE(ParseBook(good + '\0'));
    EXPECT_FALSE(ParseBook(good + "\xFF"));
    std::string zones = good;
    for (int i = 0; i < 62; ++i) {
        zones += "95,1\n";
    }
    EXPECT_FALSE(ParseBook(zones));
    std::string cells = "95";
    for (int i = 0; i < 101; ++i) {
        cells += ",1";
    }
    EXPECT_FALSE(ParseBook(good + cells));
    std::string series = good;
    for (int i = 0; i < 1000; ++i) {
        series += "# series: s\n";
    }
    EXPECT_FALSE(ParseBook(series));
}

TEST(ReadingBook, ImportsPlainReadingsUnderTheNameOfTheirFile)
{
    const SeriesImport import = ImportSeries("radius,reading\n30,.1\n60,2;3\n90,+4\n", kOuter, "file");
    EXPECT_FALSE(import.fault);
    ASSERT_EQ(1u, import.series.size());
    EXPECT_EQ("file", import.series[0].name);
    EXPECT_EQ((std::vector<SeriesZone>{{"30", {".1"}}, {"60", {"2", "3"}}, {"90", {"+4"}}}),
              import.series[0].zones);
}

TEST(ReadingBook, ImportsSeriesBySeriesAndNoneOfAFileWithAFault)
{
    ReadingBook book;
    book.series = {Sample(), Sample()};
    book.series[1].name = "B";
    const SeriesImport import = ImportSeries(BookText(book), kOuter, "file");
    EXPECT_FALSE(import.fault);
    EXPECT_EQ(book.series, import.series);

    book.series[1].zones[1].radius = "30";
    const SeriesImport bad = ImportSeries(BookText(book), kOuter, "file");
    ASSERT_TRUE(bad.fault);
    EXPECT_EQ(18, bad.fault->line); // 3 lines, 8 of the first series, 5 heads, the first zone
    EXPECT_TRUE(bad.series.empty());
    EXPECT_EQ(1, ImportSeries("", kOuter, "").fault->line);
    EXPECT_FALSE(ImportSeries("\xEF\xBB\xBF"
                              "30,1\n60,2\n90,3",
                              kOuter, "")
                     .fault);
    EXPECT_TRUE(ImportSeries("\xEF\xBB\xBF\xEF\xBB\xBF#\n30,1\n60,2\n90,3", kOuter, "").fault);
}

} // namespace

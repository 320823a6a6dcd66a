#include "report/ReportOnPaper.h"

#include "lib/text/CodePage.h"
#include "lib/text/Language.h"
#include "model/optics/CouderMask.h"
#include "support/Environment.h"
#include "support/PaintedPaper.h"
#include "support/SampleScopes.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace {

class PaperReports : public testing::Test {
protected:
    PaperReports()
    {
        MakeRoundScope(record);
        record.SetTitle("Round scope");
        record.SetDescription("Of round numbers.");
        extras.date = "2026-11-21";
    }

    std::vector<RecordingSurface> Laid(int language = kEnglish, const PaperSize& paper = kPapers[0])
    {
        ReportDesign design(record);
        const auto pages = WindowReportPages();
        const PaperDocument document = ReportOnPaper(design, pages, design.Context(language), extras, paper);
        EXPECT_EQ("Round scope", document.title);
        std::vector<RecordingSurface> painted;
        for (const PaperPage& page : document.pages) {
            EXPECT_EQ(paper.width, page.width);
            EXPECT_GE(NearestToEdge::Of(page), kWhiteEdge);
            painted.push_back(Painted(page));
        }
        return painted;
    }

    COrrevaData record;
    ReportExtras extras;
    TemporaryFolder folder;
};

bool AnySays(const std::vector<RecordingSurface>& pages, const std::string& words)
{
    return std::ranges::any_of(pages, [&](const RecordingSurface& page) { return Says(page, words); });
}

TEST_F(PaperReports, ShowTheDesignWithAllPagesOfTheSheet)
{
    const auto pages = Laid();
    EXPECT_GE(pages.size(), 2u);
    EXPECT_LE(pages.size(), kMostReportPages);
    for (const char* const words :
         {"Round scope", "2026-11-21", "Of round numbers.", "Cross-section", "Measures in mm (1:8)",
          "Design summary", "Primary", "Secondary", "Tube", "Focuser", "Mirror Cell", "Center of Gravity",
          "Zones of the Foucault Test", "Illumination of the Field", "200.0 mm (7.87\")", "length 970.0"}) {
        EXPECT_TRUE(AnySays(pages, words)) << words;
    }
    EXPECT_FALSE(AnySays(pages, "Wavefront")) << "there are no readings";
    EXPECT_FALSE(AnySays(pages, "Current mask")) << "nor a mask";
}

TEST_F(PaperReports, AreInGermanToo)
{
    const auto pages = Laid(kGerman, *FindPaper("Letter"));
    for (const char* const words : {"Querschnitt", "Zusammenfassung", "Hauptspiegel", "Schwerpunkt",
                                    "Ausleuchtung des Felds", "Durchmesser:", "Bezeichnung"}) {
        EXPECT_TRUE(AnySays(pages, words)) << words;
    }
}

TEST_F(PaperReports, TheCrossSectionIsBlackOnWhite)
{
    int black = 0;
    for (const drawn::FillRect& fill : Laid().at(0).Of<drawn::FillRect>()) {
        const bool blue = fill.colour == Colour{0, 102, 153};
        EXPECT_FALSE(blue);
        black += fill.colour == kBlack ? 1 : 0;
    }
    EXPECT_GE(black, 2) << "the walls of the tube";
}

TEST_F(PaperReports, ShowMaskAndWavefrontIfTheyAreThere)
{
    const CouderMask mask(1000, 200, 5, 0, kCouderMask, 4);
    extras.mask = &mask;
    ReadingBook book;
    ReadingSeries series{.name = "first test", .date = "2026-01-01", .zones = {}};
    for (const char* const radius : {"30", "60", "95"}) {
        series.zones.push_back({radius, {"1.0"}});
    }
    book.series.push_back(series);
    extras.readings = &book;
    const auto pages = Laid();
    EXPECT_TRUE(AnySays(pages, "Current mask"));
    EXPECT_TRUE(AnySays(pages, "100.0000 mm")) << "the edge of its last zone";
    EXPECT_TRUE(AnySays(pages, "Wavefront"));
    EXPECT_TRUE(AnySays(pages, "first test"));
    EXPECT_TRUE(AnySays(pages, "Wavefront (nm)")) << "the curve";
    book.series[0].zones.pop_back(); // too few zones to be reduced
    EXPECT_FALSE(AnySays(Laid(), "Wavefront"));
}

TEST_F(PaperReports, LeaveTheDesignAsItIs)
{
    const double before = record.focuser_total_height;
    Laid();
    EXPECT_EQ(before, record.focuser_total_height) << "not even a default is stored";
}

TEST_F(PaperReports, NumbersOfNoTelescopeEndInAReport)
{
    for (const double odd : kOddNumbers) {
        for (const RecordSetter set : kScopeSetters) {
            MakeRoundScope(record);
            record.SetTitle("Round scope");
            (record.*set)(odd);
            EXPECT_FALSE(Laid().empty()) << odd;
        }
    }
}

TEST_F(PaperReports, TheDateIsThatOfTheFile)
{
    const Environment zone("TZ", "UTC");
    tzset();
    folder.Write("design.orreva.xml", "x");
    const timespec times[] = {{86400 * 365, 0}, {86400 * 365, 0}}; // a year after 1970 began
    ASSERT_EQ(0, utimensat(AT_FDCWD, (folder / "design.orreva.xml").c_str(), times, 0));
    EXPECT_EQ("1971-01-01", DateOfDesign(folder / "design.orreva.xml", kEnglish));
    EXPECT_EQ("01.01.1971", DateOfDesign(folder / "design.orreva.xml", kGerman));
    const std::time_t now = std::time(nullptr);
    std::tm today = {};
    localtime_r(&now, &today);
    EXPECT_EQ(ReportDate(today, kEnglish), DateOfDesign(folder / "missing", kEnglish));
    EXPECT_EQ(ReportDate(today, kGerman), DateOfDesign("", kGerman));
    EXPECT_EQ(ReportDate(today, kGerman), DateOfDesign("/dev/null", kGerman))
        << "no file with a day of its own";
}

} // namespace

#include "drawing/paper/Sheets.h"

#include "lib/text/CodePage.h"
#include "support/PaintedPaper.h"
#include "support/SampleScopes.h"

#include <cmath>
#include <limits>
#include <map>
#include <numbers>
#include <set>

namespace {

constexpr Colour kGrey{130, 130, 130};
constexpr PaperSize kBoard{"board", 1000, 1000}; // whatever is measured stands on one page of it

double DiameterOf(const PixelRect& box) { return (box.right - box.left - 1) / kUnitsPerMm; }
Point CentreOf(const PixelRect& box)
{
    return {(box.left + box.right - 1) / 2.0 / kUnitsPerMm, (box.top + box.bottom - 1) / 2.0 / kUnitsPerMm};
}
double LengthOf(const drawn::Line& line)
{
    return std::hypot(line.to.x - line.from.x, line.to.y - line.from.y) / kUnitsPerMm;
}

/// A piece of a circle that was drawn: its angles in degrees, counter-clockwise, `to` above `from`.
struct Drawn {
    Point centre;
    double radius;
    double from;
    double to;
};

Drawn PieceOf(const drawn::Arc& arc)
{
    const Point centre = CentreOf(arc.box);
    const auto angle = [&](Pixel at) {
        return std::atan2(centre.y - at.y / kUnitsPerMm, at.x / kUnitsPerMm - centre.x) * 180 /
               std::numbers::pi;
    };
    const double from = angle(arc.from);
    const double to = angle(arc.to);
    return {centre, DiameterOf(arc.box) / 2, from, to > from ? to : to + 360};
}

std::vector<Drawn> PiecesOf(const RecordingSurface& page)
{
    std::vector<Drawn> pieces;
    for (const drawn::Ellipse& whole : page.Of<drawn::Ellipse>()) {
        pieces.push_back({CentreOf(whole.box), DiameterOf(whole.box) / 2, 0, 360});
    }
    for (const drawn::Arc& arc : page.Of<drawn::Arc>()) {
        pieces.push_back(PieceOf(arc));
    }
    return pieces;
}

class Sheets : public testing::Test {
protected:
    SheetPages Make(SheetKind kind, double D = 200, double f = 1200, const PaperSize& paper = kPapers[0])
    {
        MakeDefaultScope(record, D, f);
        record.SetTitle("Mein Teleskop");
        return MakeSheet(kind, record, zones, paper, language);
    }
    RecordingSurface OnBoard(SheetKind kind, double D = 200, double f = 1200)
    {
        const SheetPages sheet = Make(kind, D, f, kBoard);
        EXPECT_EQ(1u, sheet.pages.size());
        return sheet.pages.empty() ? RecordingSurface(1, 1) : Painted(sheet.pages[0]);
    }

    COrrevaData record;
    SheetZones zones{5, 5};
    int language = kEnglish;
};

// On any paper ---------------------------------------------------------------------------------------------

struct PaperCase {
    double D;
    const char* paper;
    std::size_t tiles; ///< of the mask: by hand, from 184 by 271 mm of A4 and 189.9 by 253.4 mm of Letter
};

class SheetsOnPaper : public Sheets, public testing::WithParamInterface<PaperCase> {
protected:
    const PaperSize& Paper() const { return *FindPaper(GetParam().paper); }
};

INSTANTIATE_TEST_SUITE_P(Mirrors, SheetsOnPaper,
                         testing::Values(PaperCase{114, "A4", 1}, PaperCase{114, "Letter", 1},
                                         PaperCase{200, "A4", 2}, PaperCase{200, "Letter", 2},
                                         PaperCase{400, "A4", 6}, PaperCase{400, "Letter", 6},
                                         PaperCase{400, "A3", 2}, PaperCase{250, "Tabloid", 1}));

TEST_P(SheetsOnPaper, TheMirrorsCircleIsTheMirrorAndItsTilesShowAllOfIt)
{
    const double D = GetParam().D;
    const SheetPages sheet = Make(SheetKind::kCouderMask, D, 6 * D, Paper());
    ASSERT_EQ(GetParam().tiles, sheet.pages.size());
    std::vector<int> seen(360);
    for (const PaperPage& page : sheet.pages) {
        for (const Drawn& piece : PiecesOf(Painted(page))) {
            if (std::fabs(2 * piece.radius - D) > 0.05) {
                continue;
            }
            EXPECT_NEAR(D, 2 * piece.radius, 0.011);
            for (int degree = 0; degree < 360; ++degree) {
                const double at = degree + 0.5;
                seen[static_cast<std::size_t>(degree)] +=
                    (at > piece.from && at < piece.to) || (at - 360 > piece.from && at - 360 < piece.to) ? 1
                                                                                                         : 0;
            }
        }
    }
    EXPECT_EQ(0, std::ranges::count(seen, 0)) << "degrees of the circle that are on no page";
}

TEST_P(SheetsOnPaper, TilesMeetAtTheirCrosses)
{
    const double D = GetParam().D;
    const SheetPages sheet = Make(SheetKind::kCouderMask, D, 6 * D, Paper());
    std::map<std::pair<long, long>, int>
        crosses; // middles of level grey lines of 8 mm, off the mirror's centre
    for (const PaperPage& page : sheet.pages) {
        const RecordingSurface painted = Painted(page);
        const Point centre = PiecesOf(painted).at(0).centre;
        for (const drawn::Line& line : painted.Of<drawn::Line>()) {
            if (line.colour == kGrey && line.from.y == line.to.y && std::fabs(LengthOf(line) - 8) < 0.03) {
                const double x = (line.from.x + line.to.x) / 2.0 / kUnitsPerMm - centre.x;
                ++crosses[{std::lround(10 * x), std::lround(10 * (line.from.y / kUnitsPerMm - centre.y))}];
            }
        }
    }
    const std::size_t tiles = GetParam().tiles;
    const std::size_t joints = tiles == 1   ? 0
                               : tiles == 2 ? 1
                                            : 7; // 2 rows of 3: 4 upright ones and 3 level ones
    EXPECT_EQ(2 * joints, crosses.size());
    for (const auto& [at, count] : crosses) {
        EXPECT_EQ(2, count) << "a cross stands on both neighbours, at " << at.first << ", " << at.second;
    }
}

TEST_P(SheetsOnPaper, ControlLinesAre100MmAndNothingIsNearTheEdge)
{
    for (const SheetName& name : kSheets) {
        const SheetPages sheet = Make(name.kind, GetParam().D, 6 * GetParam().D, Paper());
        ASSERT_FALSE(sheet.pages.empty()) << name.word;
        int number = 0;
        for (const PaperPage& page : sheet.pages) {
            const RecordingSurface painted = Painted(page);
            int level = 0;
            int upright = 0;
            for (const drawn::Line& line : painted.Of<drawn::Line>()) {
                const bool control = line.from.y == PaperUnits(page.height - 7) || line.from.x == 700;
                level += control && line.to == Pixel{line.from.x + 10000, line.from.y} ? 1 : 0;
                upright += control && line.to == Pixel{line.from.x, line.from.y + 10000} ? 1 : 0;
            }
            const int wanted = name.kind == SheetKind::kTube ? 0 : 1;
            EXPECT_EQ(wanted, level) << name.word;
            EXPECT_EQ(wanted, upright) << name.word;
            EXPECT_GE(NearestToEdge::Of(page), kWhiteEdge) << name.word;
            EXPECT_TRUE(Says(painted, "Mein Teleskop"));
            EXPECT_TRUE(Says(painted, name.word + std::string(" \x96 ") + name.name.english)) << name.word;
            EXPECT_EQ(wanted == 1, Says(painted, "print at 100 %: both control lines measure 100 mm"));
            ++number;
            if (wanted == 1) {
                EXPECT_TRUE(Says(painted, "1:1   " + std::to_string(number) + " / " +
                                              std::to_string(sheet.pages.size())));
            }
        }
    }
}

TEST_P(SheetsOnPaper, TheSecondaryIsTrueOnOnePage)
{
    const SheetPages sheet = Make(SheetKind::kSecondary, GetParam().D, 6 * GetParam().D, Paper());
    ASSERT_EQ(1u, sheet.pages.size());
    const double m = record.GetSecondaryDiameter();
    const auto ellipses = Painted(sheet.pages[0]).Of<drawn::Ellipse>();
    const auto largest =
        std::ranges::max_element(ellipses, {}, [](auto& one) { return DiameterOf(one.box); });
    EXPECT_NEAR(m, DiameterOf(largest->box), 0.011);
    EXPECT_NEAR(m * std::sqrt(2), (largest->box.bottom - largest->box.top - 1) / kUnitsPerMm, 0.011);
    // The optical centre's small circle stands above, nearer to the focuser.
    const auto small = std::ranges::min_element(ellipses, {}, [](auto& one) { return DiameterOf(one.box); });
    EXPECT_NEAR(std::sqrt(2) * record.GetSecondaryOffset(), CentreOf(largest->box).y - CentreOf(small->box).y,
                0.011);
    EXPECT_NEAR(CentreOf(largest->box).x, CentreOf(small->box).x, 0.011);
}

// The mask -------------------------------------------------------------------------------------------------

TEST_F(Sheets, EachWindowOfTheMaskLiesWithinItsZone)
{
    const RecordingSurface page = OnBoard(SheetKind::kCouderMask);
    std::map<long, int> radii; // thousandths of a millimetre
    for (const Drawn& piece : PiecesOf(page)) {
        if (piece.to - piece.from < 180) {
            EXPECT_NEAR(22, piece.to - piece.from, 0.2);
            ++radii[std::lround(piece.radius * 100)];
        }
    }
    // Boundaries of five rings of equal area: 100 sqrt(0.05 + 0.95 i / 5); each window has one arc on either.
    std::map<long, int> wanted;
    for (int i = 0; i <= 5; ++i) {
        const double r = 100 * std::sqrt(0.05 + 0.19 * i);
        wanted[std::lround(r * 100)] = i == 0 || i == 5 ? 2 : 4;
    }
    for (const auto& [radius, count] : wanted) {
        int found = 0;
        for (long near = radius - 1; near <= radius + 1; ++near) {
            found += radii.contains(near) ? radii[near] : 0;
        }
        EXPECT_EQ(count, found) << radius;
    }
}

/// The parts into which the lines of a page cut a mirror of the diameter D, on a grid of 0.2 mm.
int PartsOfMask(const RecordingSurface& page, double D)
{
    constexpr double kStep = 0.2;
    const auto pieces = PiecesOf(page);
    const auto mirror = std::ranges::max_element(pieces, {}, &Drawn::radius);
    const auto side = static_cast<std::size_t>(D / kStep) + 3;
    std::vector<char> grid(side * side);
    const auto place = [&](double x, double y) -> char& {
        const auto column = static_cast<std::size_t>(std::lround((x - mirror->centre.x + D / 2) / kStep) + 1);
        const auto row = static_cast<std::size_t>(std::lround((y - mirror->centre.y + D / 2) / kStep) + 1);
        return grid[row * side + column];
    };
    for (const Drawn& piece : pieces) {
        for (double at = piece.from; at <= piece.to; at += 0.02) {
            const double angle = at * std::numbers::pi / 180;
            place(piece.centre.x + piece.radius * std::cos(angle),
                  piece.centre.y - piece.radius * std::sin(angle)) = 1;
        }
    }
    for (const drawn::Line& line : page.Of<drawn::Line>()) {
        const double away = std::hypot(line.from.x / kUnitsPerMm - mirror->centre.x,
                                       line.from.y / kUnitsPerMm - mirror->centre.y);
        const bool window = line.colour == kBlack && away < D / 2 + 0.1;
        for (int i = 0; window && i <= 2000; ++i) {
            const double share = i / 2000.0;
            place((line.from.x + (line.to.x - line.from.x) * share) / kUnitsPerMm,
                  (line.from.y + (line.to.y - line.from.y) * share) / kUnitsPerMm) = 1;
        }
    }
    // What is outside counts as one part more, which is taken off again.
    int parts = -1;
    std::vector<std::size_t> open;
    for (std::size_t start = 0; start < grid.size(); ++start) {
        if (grid[start] != 0) {
            continue;
        }
        std::size_t size = 0;
        grid[start] = 2;
        open.assign(1, start);
        while (!open.empty()) {
            const std::size_t at = open.back();
            open.pop_back();
            ++size;
            for (const std::size_t next : {at - 1, at + 1, at - side, at + side}) {
                if (next < grid.size() && grid[next] == 0) {
                    grid[next] = 2;
                    open.push_back(next);
                }
            }
        }
        parts += size > 30 ? 1 : 0; // corners of lines that the grid cuts off are no parts
    }
    return parts;
}

TEST_F(Sheets, TheMaskIsOnePiece)
{
    for (const std::int32_t count : {0, 1, 2, 5, 9}) {
        for (const double centre : {0.0, 5.0, 30.0}) {
            zones = {count, centre};
            EXPECT_EQ(1 + 2 * count, PartsOfMask(OnBoard(SheetKind::kCouderMask), 200))
                << count << " zones, " << centre << " % left out: the mask and two windows a zone";
        }
    }
}

TEST_F(Sheets, ZonesAreThoseOfTheMaskOrOfTheCalculator)
{
    MakeDefaultScope(record, 200, 1200);
    EXPECT_EQ(3, ZonesOfMask(nullptr, record).count) << "the optimum of 3.3, cut";
    EXPECT_EQ(5, ZonesOfMask(nullptr, record).centre_percent);
    const CouderMask mask(1200, 200, 8, 3, kEverestPinstick, 6);
    EXPECT_EQ(6, ZonesOfMask(&mask, record).count);
    EXPECT_EQ(8, ZonesOfMask(&mask, record).centre_percent);
}

TEST_F(Sheets, TheMasksNumbersAndWordsAreTheLanguages)
{
    language = kGerman;
    const RecordingSurface page = OnBoard(SheetKind::kCouderMask);
    EXPECT_TRUE(Says(page, "couder-mask \x96 Couder-Maske"));
    EXPECT_TRUE(Says(page, "mit 100 % drucken: beide Kontrolllinien messen 100 mm"));
    for (int zone = 1; zone <= 5; ++zone) {
        EXPECT_EQ(2, std::ranges::count(WordsOf(page), std::to_string(zone)));
    }
}

// The pinstick ---------------------------------------------------------------------------------------------

TEST_F(Sheets, ThePinstickHasAMarkAtEachBoundaryOnBothSides)
{
    const RecordingSurface page = OnBoard(SheetKind::kEverest);
    std::set<double> marks; // upright black lines of 8 mm
    double left = 1e9;
    double right = 0;
    for (const drawn::Line& line : page.Of<drawn::Line>()) {
        const bool upright = line.colour == kBlack && line.from.x == line.to.x;
        if (upright && std::fabs(LengthOf(line) - 8) < 0.02) {
            marks.insert(line.from.x / kUnitsPerMm);
        }
        if (line.colour == kBlack && std::fabs(LengthOf(line) - 200) < 0.02) {
            left = std::min({left, line.from.x / kUnitsPerMm, line.to.x / kUnitsPerMm});
            right = std::max({right, line.from.x / kUnitsPerMm, line.to.x / kUnitsPerMm});
        }
    }
    EXPECT_NEAR(200, right - left, 0.011) << "the stick is as long as the mirror";
    ASSERT_EQ(12u, marks.size());
    auto mark = marks.begin();
    for (int i = 5; i >= 0; --i, ++mark) {
        EXPECT_NEAR((left + right) / 2 - 100 * std::sqrt(0.05 + 0.19 * i), *mark, 0.02) << i;
    }
    for (int i = 0; i <= 5; ++i, ++mark) {
        EXPECT_NEAR((left + right) / 2 + 100 * std::sqrt(0.05 + 0.19 * i), *mark, 0.02) << i;
        EXPECT_EQ(2, std::ranges::count(WordsOf(page), std::to_string(i)));
    }
}

TEST_F(Sheets, NumbersOfManyMarksStandClearOfOneAnother)
{
    zones = {64, 5};
    std::vector<PixelRect> boxes;
    for (const drawn::Text& text : OnBoard(SheetKind::kEverest, 114).Of<drawn::Text>()) {
        const auto width = static_cast<std::int32_t>(TextWidth(text.text, text.font));
        boxes.push_back({text.at.x, text.at.y, text.at.x + width, text.at.y + text.font.height});
    }
    EXPECT_GT(boxes.size(), 130u);
    int touching = 0;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k) {
            touching += boxes[i].left < boxes[k].right && boxes[k].left < boxes[i].right &&
                                boxes[i].top + 2 < boxes[k].bottom && boxes[k].top + 2 < boxes[i].bottom
                            ? 1
                            : 0;
        }
    }
    EXPECT_EQ(0, touching);
}

// Marks, tube ----------------------------------------------------------------------------------------------

TEST_F(Sheets, MarksAreTheLargestThatTheFieldAllows)
{
    MakeRoundScope(record);
    record.SetWanted100PercentFow(10); // p = 30 - 10 * 800 / 1000 = 22, s = 32 * 0.2 - 10 < 0
    auto sheet = MakeSheet(SheetKind::kMarks, record, {}, kBoard, kEnglish);
    auto page = Painted(sheet.pages.at(0));
    ASSERT_EQ(1u, page.Of<drawn::Ellipse>().size()) << "a mark of 0 mm is not drawn";
    EXPECT_NEAR(22, DiameterOf(page.Of<drawn::Ellipse>()[0].box), 0.011);
    EXPECT_TRUE(Says(page, "mark of the primary: at most 22.00 mm"));
    EXPECT_TRUE(Says(page, "mark of the secondary: 0 mm, none"));

    record.SetWanted100PercentFow(1); // p = 29.2, s = 30.2 * 0.2 - 1 = 5.04
    sheet = MakeSheet(SheetKind::kMarks, record, {}, kBoard, kEnglish);
    page = Painted(sheet.pages.at(0));
    ASSERT_EQ(2u, page.Of<drawn::Ellipse>().size());
    EXPECT_NEAR(5.04, DiameterOf(page.Of<drawn::Ellipse>()[1].box), 0.011);

    record.SetWanted100PercentFow(60);
    sheet = MakeSheet(SheetKind::kMarks, record, {}, kBoard, kEnglish);
    EXPECT_TRUE(Painted(sheet.pages.at(0)).Of<drawn::Ellipse>().empty());
}

TEST_F(Sheets, TheTubeIsFittedToThePaperWithItsMeasures)
{
    MakeRoundScope(record); // 970 mm long, 240 mm wide outside
    const SheetPages sheet = MakeSheet(SheetKind::kTube, record, {}, *FindPaper("A4"), kEnglish);
    ASSERT_EQ(1u, sheet.pages.size());
    EXPECT_EQ(297, sheet.pages[0].width) << "the paper lies";
    const RecordingSurface page = Painted(sheet.pages[0]);
    EXPECT_TRUE(Says(page, "1:4   1 / 1")) << "970 / 4 and its measures fit into 281 mm, 970 / 3 does not";
    for (const char* const words :
         {"front to focuser 100.0", "focuser hole \xD8 50.0", "focuser to primary 800.0", "length 970.0",
          "primary's thickness 20.0", "primary to rear 50.0", "inside \xD8 220.0", "outside \xD8 240.0",
          "primary \xD8 200.0"}) {
        EXPECT_TRUE(Says(page, words)) << words;
    }
    int walls = 0;
    int hole = 0;
    for (const drawn::Line& line : page.Of<drawn::Line>()) {
        walls += std::fabs(LengthOf(line) - 970.0 / 4) < 0.02 && line.from.y == line.to.y ? 1 : 0;
        hole += std::fabs(LengthOf(line) - 50.0 / 4) < 0.02 && line.from.y == line.to.y ? 1 : 0;
    }
    EXPECT_GE(walls, 4) << "two walls with two sides each";
    EXPECT_GE(hole, 1);

    record.SetTubeType(2);
    record.SetInsideDiameterBox(260);
    record.SetThicknessBox(8);
    const SheetPages truss = MakeSheet(SheetKind::kTube, record, {}, *FindPaper("A4"), kEnglish);
    const RecordingSurface trussPage = Painted(truss.pages.at(0));
    for (const char* const words : {"upper cage 160.0", "mirror box 150.0", "gap 660.0",
                                    "box inside \xD8 260.0", "box outside \xD8 276.0"}) {
        EXPECT_TRUE(Says(trussPage, words)) << words;
    }
}

// What cannot be drawn --------------------------------------------------------------------------------------

TEST_F(Sheets, MoreThanAHundredPagesAreNone)
{
    // 10 by 10 tiles of A4 reach over 1850 by 2720 mm, 11 columns would be needed from there on.
    EXPECT_EQ(70u, Make(SheetKind::kCouderMask, 1800, 9000).pages.size());
    const SheetPages sheet = Make(SheetKind::kCouderMask, 2500, 9000);
    EXPECT_TRUE(sheet.pages.empty());
    ASSERT_TRUE(sheet.fault);
    EXPECT_STREQ("more than 100 pages would be needed", sheet.fault->english);
    EXPECT_TRUE(Make(SheetKind::kCouderMask, 1e300, 9000).fault);
}

TEST_F(Sheets, NumbersOfNoTelescopeEndInPagesOrAWord)
{
    for (const SheetName& sheet : kSheets) {
        for (const double odd : kOddNumbers) {
            for (const RecordSetter set : kScopeSetters) {
                MakeDefaultScope(record);
                (record.*set)(odd);
                const SheetPages made = MakeSheet(sheet.kind, record, zones, kPapers[0], language);
                EXPECT_NE(made.pages.empty(), !made.fault) << sheet.word << " " << odd;
                for (std::size_t i = 0; i < made.pages.size(); i += 7) {
                    EXPECT_GE(NearestToEdge::Of(made.pages[i]), kWhiteEdge) << sheet.word << " " << odd;
                }
            }
        }
    }
    for (const double centre : {-5.0, 100.0, 200.0, HUGE_VAL, std::numeric_limits<double>::quiet_NaN()}) {
        zones = {64, centre};
        EXPECT_EQ(2u, Make(SheetKind::kCouderMask).pages.size()) << centre;
        EXPECT_EQ(1u, Make(SheetKind::kEverest).pages.size()) << centre;
    }
}

TEST_F(Sheets, AnyTitleFitsOnThePage)
{
    MakeDefaultScope(record);
    record.SetTitle(std::string(5000, 'W').c_str());
    for (const SheetName& sheet : kSheets) {
        const SheetPages pages = MakeSheet(sheet.kind, record, zones, kPapers[0], language);
        EXPECT_GE(NearestToEdge::Of(pages.pages.at(0)), kWhiteEdge) << sheet.word;
    }
}

} // namespace

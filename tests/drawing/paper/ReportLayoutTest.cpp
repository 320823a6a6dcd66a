#include "drawing/paper/ReportLayout.h"

#include "lib/text/Language.h"
#include "support/PaintedPaper.h"

namespace {

constexpr const PaperSize& kA4 = kPapers[0];

std::vector<std::string> Row(int number) { return {"row " + std::to_string(number), "value of it"}; }

ReportTable Table(const std::string& heading, int rows)
{
    ReportTable table{heading};
    for (int i = 0; i < rows; ++i) {
        table.rows.push_back(Row(i));
    }
    return table;
}

std::vector<RecordingSurface> Laid(const PaperReport& report, const PaperSize& paper = kA4)
{
    std::vector<RecordingSurface> pages;
    for (const PaperPage& page : LayOutReport(report, paper, kEnglish).pages) {
        EXPECT_GE(NearestToEdge::Of(page), kWhiteEdge);
        pages.push_back(Painted(page));
    }
    return pages;
}

/// The first call that writes this.
drawn::Text Find(const RecordingSurface& page, const std::string& words)
{
    for (const drawn::Text& text : page.Of<drawn::Text>()) {
        if (text.text == words) {
            return text;
        }
    }
    ADD_FAILURE() << words;
    return {};
}

TEST(ReportLayout, TheFirstPageBeginsWithTitleDateAndDescription)
{
    const auto pages =
        Laid({"My telescope", "2026-11-21", "First line\r\nand\tsecond", {Table("Things", 2)}});
    ASSERT_EQ(1u, pages.size());
    const drawn::Text title = pages[0].Of<drawn::Text>().at(0);
    EXPECT_EQ("My telescope", title.text);
    EXPECT_EQ(Font::kBold, title.font.weight);
    EXPECT_TRUE(Says(pages[0], "2026-11-21"));
    EXPECT_TRUE(Says(pages[0], "First line"));
    EXPECT_TRUE(Says(pages[0], "and second")) << "a TAB is a blank";
    EXPECT_TRUE(Says(pages[0], "1 / 1"));
    const int ordered[] = {title.at.y,
                           Find(pages[0], "2026-11-21").at.y,
                           Find(pages[0], "First line").at.y,
                           Find(pages[0], "and second").at.y,
                           Find(pages[0], "Things").at.y,
                           Find(pages[0], "row 0").at.y,
                           Find(pages[0], "row 1").at.y};
    EXPECT_TRUE(std::ranges::is_sorted(ordered));
}

TEST(ReportLayout, PagesHaveTheirNumberAndARunningTitle)
{
    PaperReport report{"My telescope", "", ""};
    for (int i = 0; i < 30; ++i) {
        report.parts.emplace_back(Table("Table " + std::to_string(i), 10));
    }
    const auto pages = Laid(report);
    ASSERT_GT(pages.size(), 2u);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        EXPECT_TRUE(Says(pages[i], std::to_string(i + 1) + " / " + std::to_string(pages.size())));
        EXPECT_EQ(1000, pages[i].Of<drawn::Text>().rbegin()[1].at.y);
        EXPECT_EQ("My telescope", pages[i].Of<drawn::Text>().rbegin()[1].text);
    }
}

TEST(ReportLayout, AHeadingStandsAboveItsRowsWhereverThePageEnds)
{
    for (int before = 0; before < 60; ++before) {
        PaperReport report{"T", "", std::string(static_cast<std::size_t>(std::min(before, 39)), '\n') + "x"};
        ReportTable filler = Table("Filler", 12);
        report.parts.assign(static_cast<std::size_t>(3 + before % 4), filler);
        report.parts.emplace_back(Table("The heading", 5));
        int found = 0;
        for (const RecordingSurface& page : Laid(report)) {
            if (!Says(page, "The heading")) {
                continue;
            }
            ++found;
            const std::int32_t heading = Find(page, "The heading").at.y;
            int below = 0;
            for (const drawn::Text& text : page.Of<drawn::Text>()) {
                below += text.text.starts_with("row ") && text.at.y > heading ? 1 : 0;
            }
            EXPECT_GE(below, 3) << before;
        }
        EXPECT_EQ(1, found) << before;
    }
}

TEST(ReportLayout, EveryRowIsThereOnce)
{
    const auto pages = Laid({"T", "", "", {Table("Long", 250), Table("Short", 3)}});
    std::vector<int> seen(250);
    for (const RecordingSurface& page : pages) {
        for (const std::string& words : WordsOf(page)) {
            if (words.starts_with("row ")) {
                ++seen[std::stoul(words.substr(4))];
            }
        }
    }
    for (std::size_t i = 0; i < seen.size(); ++i) {
        EXPECT_EQ(i < 3 ? 2 : 1, seen[i]) << i;
    }
    EXPECT_LE(pages.size(), 2u) << "narrow tables stand side by side with themselves";
}

TEST(ReportLayout, ALongTableGoesOnUnderItsHeading)
{
    ReportTable wide{"Wide"};
    for (int i = 0; i < 120; ++i) {
        wide.rows.push_back({std::to_string(i), std::string(90, 'x')});
    }
    const auto pages = Laid({"T", "", "", {wide}});
    ASSERT_EQ(3u, pages.size());
    EXPECT_TRUE(Says(pages[0], "Wide"));
    EXPECT_TRUE(Says(pages[1], "Wide (continued)"));
    EXPECT_TRUE(Says(pages[2], "119"));
}

TEST(ReportLayout, AHeadingAmongTheRowsStaysWithWhatFollows)
{
    ReportTable table{"Eyepieces"};
    for (int i = 0; i < 40; ++i) {
        table.rows.push_back({"Eyepiece " + std::to_string(i)});
        for (int k = 0; k < 4; ++k) {
            table.rows.push_back({std::string("property"), "value"});
        }
    }
    for (const RecordingSurface& page : Laid({"T", "", "", {table}})) {
        const auto texts = page.Of<drawn::Text>();
        for (std::size_t i = 0; i + 8 < texts.size(); ++i) {
            if (!texts[i].text.starts_with("Eyepiece ")) {
                continue;
            }
            EXPECT_EQ(Font::kBold, texts[i].font.weight);
            for (std::size_t k = 1; k <= 8; k += 2) {
                EXPECT_EQ(texts[i].at.x, texts[i + k].at.x) << "in the same group of columns";
                EXPECT_GT(texts[i + k].at.y, texts[i].at.y);
            }
        }
    }
}

TEST(ReportLayout, LongCellsAreBrokenBetweenWordsWithinTheirColumn)
{
    ReportTable table{"Words"};
    std::string words;
    for (int i = 0; i < 60; ++i) {
        words += "word ";
    }
    table.rows.push_back({words, words});
    const auto pages = Laid({"T", "", "", {table}});
    int lines = 0;
    for (const drawn::Text& text : pages.at(0).Of<drawn::Text>()) {
        lines += text.text.starts_with("word") ? 1 : 0;
        EXPECT_LE(text.at.x + TextWidth(text.text, text.font), 21000 - 1600 + 1) << text.text;
    }
    EXPECT_GT(lines, 4);
}

TEST(ReportLayout, AReportOfAnySizeEndsAfterEightPagesAndSaysSo)
{
    PaperReport report{std::string(100000, 'T'), "", std::string(1000000, 'd')};
    ReportTable table{"Much"};
    table.rows.assign(400, {std::string(1000, 'a'), "b", "c"});
    report.parts.assign(40, table);
    const auto pages = Laid(report);
    EXPECT_EQ(kMostReportPages, pages.size());
    EXPECT_TRUE(Says(pages.back(), "The report is longer than these pages; the rest is not printed."));
    const auto whole = Laid({"T", "", "", {Table("Short", 3)}});
    EXPECT_FALSE(Says(whole.back(), "The report is longer than these pages; the rest is not printed."));
}

TEST(ReportLayout, ATableTellsThatItHasMoreRows)
{
    const auto pages = Laid({"T", "", "", {Table("Many", 1000)}});
    EXPECT_TRUE(std::ranges::any_of(WordsOf(pages.back()), [](const std::string& words) {
        return words.starts_with("There are more"); // broken where its column ends
    }));
    const auto anySays = [&](const char* words) {
        return std::ranges::any_of(pages, [&](const RecordingSurface& page) { return Says(page, words); });
    };
    EXPECT_TRUE(anySays("row 299"));
    EXPECT_FALSE(anySays("row 300"));
}

TEST(ReportLayout, APictureHasItsPlaceOnThePage)
{
    PixelRect place{};
    const ReportPicture picture{"Picture", 100, [&place](Surface& page, const PixelRect& given) {
                                    place = given;
                                    page.FillRect(given, kBlack);
                                }};
    const auto pages = Laid({"T", "", "", {picture, picture, picture}}, *FindPaper("Letter"));
    EXPECT_EQ(2u, pages.size()) << "two of them fit on a page";
    EXPECT_EQ(10000, place.bottom - place.top);
    EXPECT_EQ(21590 - 2 * 1600, place.right - place.left);
}

} // namespace

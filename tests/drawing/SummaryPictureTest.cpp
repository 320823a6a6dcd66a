#include "drawing/SummaryPicture.h"

#include "lib/text/Language.h"
#include "model/analysis/Summary.h"
#include "support/RecordingSurface.h"
#include "support/SampleScopes.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr Colour kField{51, 153, 102};
constexpr Colour kText{240, 240, 240};
constexpr Colour kRed{255, 0, 0};

using Call = drawn::Call;

TEST(SummaryPicture, StaysPlainGreenWithoutATelescope)
{
    COrrevaData record;
    for (const std::int32_t width : {1, 400, 3000}) {
        RecordingSurface pane(width, 700);
        PaintSummary(pane, record, {12, 0.5}, kEnglish);
        EXPECT_EQ((std::vector<Call>{drawn::FillRect{{0, 0, width, 700}, kField}}), pane.calls);
    }
}

TEST(SummaryPicture, SetsLabelsAndValuesInTwoColumns)
{
    COrrevaData record;
    MakeRoundScope(record);
    record.SetTitle("Round");
    RecordingSurface pane(400, 700);
    PaintSummary(pane, record, {20, 1.5}, kEnglish);
    const Font plain{14, 200};
    const Font bold{14, 600};
    const std::vector<Call> first = {
        drawn::FillRect{{0, 0, 400, 700}, kField},
        drawn::WrappedText{{2, 2, 400, 1002}, "Round", bold, kText},
        drawn::WrappedText{{2, 26, 160, 1026}, "Primary", bold, kText}, // 14 and 10 further down
        drawn::WrappedText{{2, 40, 160, 1040}, "Diameter:", plain, kText},
        drawn::WrappedText{{160, 40, 400, 1040}, "200.0 mm (7.87\")", plain, kText},
        drawn::WrappedText{{2, 54, 160, 1054}, "Focal Length:", plain, kText},
    };
    for (std::size_t i = 0; i < first.size(); ++i) {
        EXPECT_EQ(first[i], pane.calls.at(i)) << i;
    }
    // The last row stands below 24 others and six gaps; two labels of 29 characters take a second line, that
    // of 26 just fits into 158 pixels.
    const auto texts = pane.Of<drawn::WrappedText>();
    EXPECT_EQ((drawn::WrappedText{
                  {160, 2 + 24 * 14 + 6 * 10 + 2 * 14, 400, 1426}, "32.00 mm  (1.83\xB0)", plain, kText}),
              texts.back());
}

TEST(SummaryPicture, MovesWhatFollowsDownWhenALabelWraps)
{
    COrrevaData record;
    MakeRoundScope(record);
    RecordingSurface pane(400, 700);
    PaintSummary(pane, record, {20, 1.5}, kGerman);
    const auto texts = pane.Of<drawn::WrappedText>();
    for (std::size_t i = 0; i + 2 < texts.size(); ++i) {
        if (texts[i].text == "Durchmesser der kleinen Achse:") { // 30 characters
            EXPECT_EQ(texts[i].box.top, texts[i + 1].box.top);
            EXPECT_EQ(texts[i].box.top + 28, texts[i + 2].box.top);
            return;
        }
    }
    FAIL() << "the row is missing";
}

TEST(SummaryPicture, KeepsItsColumnsInANarrowPane)
{
    COrrevaData record;
    MakeRoundScope(record);
    RecordingSurface wide(400, 700);
    PaintSummary(wide, record, {20, 1.5}, kGerman);
    for (const std::int32_t width : {1, 100, 159, 399, 3000}) {
        RecordingSurface pane(width, 700);
        PaintSummary(pane, record, {20, 1.5}, kGerman);
        EXPECT_EQ(wide.Of<drawn::WrappedText>(), pane.Of<drawn::WrappedText>()) << width;
    }
}

TEST(SummaryPicture, SetsEachRowBelowTheLinesOfThoseAbove)
{
    COrrevaData record;
    MakeRoundScope(record);
    record.SetTitle(
        std::string(61, 't').append(" wraps").c_str()); // 67 characters, of which 66 fit into a row
    RecordingSurface pane(400, 700);
    PaintSummary(pane, record, {20, 1.5}, kGerman);
    // The lines that a row takes: 26 characters fit beside the values. A heading stands 10 pixels lower.
    struct Row {
        const char* label;
        int lines;
        bool heading = false;
    };
    const std::string title = record.GetTitle().GetText();
    const Row rows[] = {
        {title.c_str(), 2},
        {"Hauptspiegel", 1, true},
        {"Durchmesser:", 1},
        {"Brennweite:", 1},
        {"\xD6"
         "ffnungsverh\xE4ltnis:",
         1},
        {"Dicke:", 1},
        {"Fangspiegel", 1, true},
        {"Durchmesser der kleinen Achse:", 2},
        {"Offset:", 1},
        {"Tubus", 1, true},
        {"L\xE4nge:", 1},
        {"Durchmesser:", 1},
        {"Wanddicke:", 1},
        {"Focuser", 1, true},
        {"Durchmesser:", 1},
        {"H\xF6he:", 1},
        {"Extra H\xF6he f\xFCr Zubeh\xF6r:", 1},
        {"Ma\xDF"
         "e:",
         1, true},
        {"Brennebene \xFC"
         "ber Tubus:",
         1},
        {"Brennebene \xFC"
         "ber optischer Achse:",
         2},
        {"Hauptspiegel hinter OAZ-Centruem:", 2},
        {"Begrenzende Faktoren des 100% FOV:", 2, true},
        {"Tubus\xF6"
         "ffnung:",
         1},
        {"Fangspiegel:", 1},
        {"Focuser:", 1},
    };
    std::vector<drawn::WrappedText> labels = pane.Of<drawn::WrappedText>();
    std::erase_if(labels, [](const auto& text) { return text.box.left != 2; });
    ASSERT_EQ(std::size(rows), labels.size());
    std::int32_t y = 2;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        y += rows[i].heading ? 10 : 0;
        EXPECT_EQ(rows[i].label, labels[i].text);
        EXPECT_EQ(y, labels[i].box.top) << rows[i].label;
        EXPECT_EQ(i == 0 ? 400 : 160, labels[i].box.right) << rows[i].label;
        y += 14 * rows[i].lines;
    }
}

TEST(SummaryPicture, WritesAWarningValueRedAndItsLabelLight)
{
    COrrevaData record;
    MakeRoundScope(record);
    record.SetWanted100PercentFow(30);
    RecordingSurface pane(400, 700);
    PaintSummary(pane, record, {20, 1.5}, kEnglish);
    const auto texts = pane.Of<drawn::WrappedText>();
    const std::size_t last = texts.size() - 1;
    EXPECT_EQ("32.00 mm  (1.83\xB0)", texts[last].text);
    EXPECT_EQ(kText, texts[last].colour) << "light again after the red one";
    EXPECT_EQ("20.00 mm (1.50\xB0)", texts[last - 2].text);
    EXPECT_EQ(kRed, texts[last - 2].colour);
    EXPECT_EQ(kText, texts[last - 3].colour) << "the label";
}

TEST(SummaryPicture, KeepsItsColumnsOnPaperWithALargerFont)
{
    COrrevaData record;
    MakeRoundScope(record);
    RecordingSurface page(800, 1000);
    PaintSummary(page, record, {20, 1.5}, kEnglish, kPaperFontHeight);
    const auto texts = page.Of<drawn::WrappedText>();
    EXPECT_EQ((drawn::WrappedText{{2, 2 + 24 + 10 + 24, 160, 1060}, "Diameter:", {24, 200}, kText}),
              texts.at(2));
    EXPECT_EQ((drawn::WrappedText{{160, 60, 400, 1060}, "200.0 mm (7.87\")", {24, 200}, kText}), texts.at(3));
}

TEST(SummaryPicture, HasTheColoursThatItIsGiven)
{
    COrrevaData record;
    MakeRoundScope(record);
    record.SetWanted100PercentFow(25); // more than the secondary's 20
    RecordingSurface usual(400, 700);
    PaintSummary(usual, record, {20, 1.5}, kEnglish);
    RecordingSurface clear(400, 700);
    PaintSummary(clear, record, {20, 1.5}, kEnglish, kScreenFontHeight, kContrastSummary);
    EXPECT_EQ(kWhite, clear.Of<drawn::FillRect>().at(0).colour);
    const auto usualTexts = usual.Of<drawn::WrappedText>();
    const auto texts = clear.Of<drawn::WrappedText>();
    ASSERT_EQ(usualTexts.size(), texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        EXPECT_EQ(usualTexts[i].box, texts[i].box) << i;
        EXPECT_EQ(usualTexts[i].colour == kRed ? kContrastSummary.warning : kBlack, texts[i].colour) << i;
    }
    EXPECT_TRUE(
        std::ranges::any_of(texts, [](const auto& text) { return text.colour == kContrastSummary.warning; }));
}

} // namespace

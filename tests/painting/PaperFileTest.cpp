#include "painting/PaperFile.h"

#include "drawing/paper/TextWidth.h"
#include "painting/QtText.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <QLocale>
#include <QPainter>

namespace {

PaperDocument TwoPages()
{
    const auto paint = [](Surface& page) { page.Line({1000, 2000}, {11000, 2000}, kBlack); };
    return {"T\xE4st", {{210, 297, paint}, {297, 210, paint}}};
}

TEST(PaperFile, EachPageHasItsOwnPaper)
{
    const QByteArray pdf = PdfBytes(TwoPages());
    EXPECT_TRUE(pdf.startsWith("%PDF-"));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    const qsizetype upright = pdf.indexOf("/MediaBox [0 0 595.000000 842.000000]");
    const qsizetype lying = pdf.indexOf("/MediaBox [0 0 842.000000 595.000000]");
    EXPECT_GT(upright, 0);
    EXPECT_GT(lying, upright);
    EXPECT_TRUE(pdf.contains(QByteArray("/Title (\xFE\xFF\0T\0\xE4\0s\0t)", 19)));
}

TEST(PaperFile, APageOnTheScreenIsAsLargeAsItsScale)
{
    QImage image(420, 594, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        PaintPaperPage(painter, TwoPages().pages[0], 2); // two pixels a millimetre
    }
    const auto isInk = [&](int x, int y) { return qGray(image.pixel(x, y)) < 250; };
    const auto hasInk = [&](int x) { return isInk(x, 39) || isInk(x, 40); };
    EXPECT_TRUE(hasInk(21) && hasInk(120) && hasInk(219)) << "the line runs from 10 to 110 mm, at 20 mm";
    EXPECT_FALSE(hasInk(18) || hasInk(222));
    EXPECT_FALSE(isInk(120, 30) || isInk(120, 50));
}

TEST(PaperFile, TextsAreAsWideAsTheLayoutTakesThem)
{
    QFont font(QStringList{"Arial", "Liberation Sans"});
    font.setPixelSize(2048);
    font.setKerning(false);
    for (const bool bold : {false, true}) {
        font.setBold(bold);
        const QFontMetricsF metrics(font);
        const Font ours{2288, bold ? Font::kBold : Font::kNormal};
        for (int byte = ' '; byte < 256; ++byte) {
            if ((byte >= 0x7F && byte < 0xA1) || byte == 0xAD || byte == 0xB5) {
                continue; // controls, blanks, and signs that stand twice in fonts
            }
            const std::string text(1, static_cast<char>(byte));
            EXPECT_NEAR(metrics.horizontalAdvance(ToQString(text)), TextWidth(text, ours), 40) << byte;
        }
    }
}

TEST(PaperFile, ThePaperIsTheCountrys)
{
    EXPECT_STREQ("A4", PaperOfLocale(QLocale("de_DE")).name);
    EXPECT_STREQ("A4", PaperOfLocale(QLocale("en_GB")).name);
    EXPECT_STREQ("A4", PaperOfLocale(QLocale::c()).name);
    EXPECT_STREQ("Letter", PaperOfLocale(QLocale("en_US")).name);
    EXPECT_STREQ("Letter", PaperOfLocale(QLocale("fr_CA")).name);
}

TEST(PaperFile, APageLeavesThePainterAsItWas)
{
    QImage image(100, 100, QImage::Format_RGB32);
    QPainter painter(&image);
    const QTransform before = painter.transform();
    PaintPaperPage(painter, {20, 30, [](Surface&) {}}, 2);
    EXPECT_EQ(before, painter.transform()) << "or the next page would be smaller";
}

} // namespace

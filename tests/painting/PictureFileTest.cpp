#include "painting/PictureFile.h"

#include <gtest/gtest.h>

#include <QImage>

namespace {

void PaintRed(Surface& surface)
{
    surface.FillRect({0, 0, surface.Width() / 2, surface.Height()}, {255, 0, 0});
}

TEST(PictureFile, TheEndingPicksTheForm)
{
    EXPECT_TRUE(IsPictureFile("a b.png") && IsPictureFile("/x/y.svg") && IsPictureFile("z.pdf"));
    EXPECT_FALSE(IsPictureFile("a.bmp") || IsPictureFile("png") || IsPictureFile(""));
    const QImage image = QImage::fromData(PictureBytes("a.png", {40, 20}, "T", PaintRed).value());
    ASSERT_EQ(QSize(40, 20), image.size());
    EXPECT_EQ(qRgb(255, 0, 0), image.pixel(10, 10));
    EXPECT_EQ(qRgb(255, 255, 255), image.pixel(30, 10));
    const QByteArray svg = PictureBytes("a.svg", {40, 20}, "My <T>", PaintRed).value();
    EXPECT_TRUE(svg.contains("viewBox=\"0 0 40 20\""));
    EXPECT_TRUE(svg.contains("#ff0000"));
    EXPECT_TRUE(PictureBytes("a.pdf", {40, 20}, "T", PaintRed).value().startsWith("%PDF-"));
    EXPECT_FALSE(PictureBytes("a.gif", {40, 20}, "T", PaintRed));
}

} // namespace

#include "app/AppFixture.h"

#include "drawing/SectionPicture.h"
#include "painting/PainterSurface.h"
#include "views/LeftView.h"
#include "views/OrrevaView.h"

#include <QImage>
#include <QPainter>

#include <cmath>

namespace {

/// What a widget shows on a screen of so many pixels for one of the program's, from a corner that may lie
/// within a pixel.
QImage OnScreen(QWidget& widget, double scale, QPoint corner = {})
{
    const QSizeF size = QSizeF(widget.width() + corner.x(), widget.height() + corner.y()) * scale;
    QImage image(qRound(size.width()), qRound(size.height()), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::magenta);
    widget.render(&image, corner);
    image.setDevicePixelRatio(1);
    return image;
}

class PanePixels : public AppFixture {
protected:
    PanePixels()
    {
        MakeTelescope();
        Choose(32776);
        QCursor::setPos(Section().mapToGlobal(QPoint(200, 210)));
        Section().grab();
    }
    COrrevaView& Section() const { return app->Frame().RightView(); }

    /// The picture itself, on pixels of that scale.
    QImage Painted(double scale, QSize size) const
    {
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        PainterSurface surface(painter, size.width(), size.height());
        SectionZoom view = Section().Zoom();
        const Pixel at{200, 210};
        PaintSection(surface, view, app->Document().main_record, app->Document(), at, kEnglish, scale);
        return image;
    }
};

TEST_F(PanePixels, AreTheScreensOwnAtBrokenScales)
{
    for (const double scale : {1.25, 1.5, 1.75}) {
        const QImage shown = OnScreen(Section(), scale);
        EXPECT_EQ(Painted(scale, shown.size()), shown) << scale;
    }
}

TEST_F(PanePixels, LieOnTheScreensFromACornerWithinOne)
{
    const QImage shown = OnScreen(Section(), 1.5, {3, 5}); // 4.5 and 7.5 pixels of the screen
    const QPoint corner(5, 8);
    const QSize size(shown.width() - corner.x(), shown.height() - corner.y());
    EXPECT_EQ(Painted(1.5, size), shown.copy(QRect(corner, size)));
}

TEST_F(PanePixels, AreWhatTheyWereAtWholeScales)
{
    const QImage one = OnScreen(Section(), 1);
    EXPECT_EQ(Painted(1, one.size()), one);
    // Each pixel is four of them; texts alone are finer. Between the status and the scale there is none.
    const QImage two = OnScreen(Section(), 2);
    const QRect between(0, 20, one.width(), 160);
    EXPECT_EQ(one.copy(between).scaled(between.size() * 2),
              two.copy(QRect(between.topLeft() * 2, between.size() * 2)));
}

TEST_F(PanePixels, OfBothPanesAreBlackOnWhiteInHighContrast)
{
    Choose(33063);
    EXPECT_EQ(QColor(Qt::white), Section().grab().toImage().pixelColor(1, Section().height() - 2));
    CLeftView& summary = app->Frame().LeftView();
    EXPECT_EQ(QColor(Qt::white), summary.grab().toImage().pixelColor(1, summary.height() - 2));
    Choose(33063);
    EXPECT_EQ(QColor(0, 102, 153), Section().grab().toImage().pixelColor(1, Section().height() - 2));
    EXPECT_EQ(QColor(51, 153, 102), summary.grab().toImage().pixelColor(1, summary.height() - 2));
}

TEST_F(PanePixels, MoveByTheKeyboard)
{
    COrrevaView& view = Section();
    QTest::keyClick(&view, Qt::Key_Plus);
    EXPECT_EQ((SectionZoom{2, (view.width() + 1) / 2, (view.height() + 1) / 2}), view.Zoom());
    QTest::keyClick(&view, Qt::Key_Left);
    EXPECT_EQ((view.width() + 1) / 2 - view.width() / 10, view.Zoom().scrollX);
    QTest::keyClick(&view, Qt::Key_Minus);
    EXPECT_EQ(1, view.Zoom().zoom);
}

} // namespace

// Widgets that only show: they show something, they follow what they are given, and they keep their room.

#include "app/AppFixture.h"

#include "views/MirrorPanel.h"
#include "views/PaintCounter.h"
#include "views/PaintedSlider.h"
#include "views/PaperPreview.h"
#include "views/SectionThumbnail.h"
#include "views/SurfaceDiscWidget.h"
#include "views/WidgetPixels.h"

#include <QSignalSpy>

#include <set>

namespace {

TEST(PaintedSlider, ShowsItsHandleAndTellsThatItDid)
{
    CPaintedSlider slider;
    slider.setOrientation(Qt::Horizontal);
    slider.setRange(0, 100);
    slider.resize(200, 30);
    const QSignalSpy painted(&slider, &CPaintedSlider::Painted);
    slider.setValue(0);
    const QImage left = Shown(slider);
    slider.setValue(100);
    const QImage right = Shown(slider);
    EXPECT_NE(left, right);
    EXPECT_EQ(2, painted.size());
    EXPECT_EQ(100, painted.last().first().toInt());
}

TEST(SectionThumbnail, FollowsTheDesign)
{
    COrrevaData record;
    CSectionThumbnail thumbnail;
    thumbnail.resize(200, 100);
    thumbnail.show();
    PaintCounter paints(thumbnail);
    paints.Take();
    const QImage nothing = Shown(thumbnail);
    paints.Take();
    thumbnail.SetTelescope(&record);
    EXPECT_GE(paints.Take(), 1);
    EXPECT_NE(nothing, Shown(thumbnail));
}

TEST(SurfaceDisc, FollowsTheFigure)
{
    CSurfaceDiscWidget disc;
    disc.show();
    PaintCounter paints(disc);
    paints.Take();
    disc.Show(std::nullopt, 200);
    EXPECT_GE(paints.Take(), 1);
}

using MirrorPanelWidget = AppFixture;

TEST_F(MirrorPanelWidget, KeepsRoomForItsRowsAndItsPicture)
{
    const CMirrorPanel panel(app->Document(), nullptr);
    EXPECT_EQ(330, panel.minimumHeight());
}

/// Where the white pages begin and end along a line of pixels.
std::vector<int> WhiteEdges(const QImage& image, int y)
{
    std::vector<int> edges;
    bool white = false;
    for (int x = 0; x < image.width(); ++x) {
        const bool now = image.pixel(x, y) == qRgb(255, 255, 255);
        if (now != white) {
            edges.push_back(x);
            white = now;
        }
    }
    return edges;
}

TEST(PaperPreview, PagesStandBesideEachOtherAndApart)
{
    CPaperPreview preview;
    const auto nothing = [](Surface&) {};
    preview.ShowDocument({"pages", {{50, 40, nothing}, {30, 40, nothing}, {50, 40, nothing}}});
    preview.SetScale(100);
    const double mm = preview.logicalDpiX() / 25.4;
    preview.resize(static_cast<int>(80 * mm) + 3 * 12 + 1, 600);
    const std::vector<int> edges = WhiteEdges(Shown(preview), 20);
    ASSERT_EQ(4u, edges.size()) << "two pages fit into a row";
    EXPECT_EQ(12, edges[0]);
    EXPECT_NEAR(12 + 50 * mm, edges[1], 1);
    EXPECT_NEAR(24 + 50 * mm, edges[2], 1);
    EXPECT_NEAR(24 + 80 * mm, edges[3], 1);
    const int second = static_cast<int>(24 + 40 * mm) + 10;
    EXPECT_EQ(2u, WhiteEdges(Shown(preview), second).size()) << "the third stands below";
    EXPECT_EQ(static_cast<int>(std::ceil(36 + 80 * mm)), preview.heightForWidth(preview.width()));
}

} // namespace

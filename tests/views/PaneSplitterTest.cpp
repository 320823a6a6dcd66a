#include "views/PaneSplitter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTest>

namespace {

class PaneSplitter : public testing::Test {
protected:
    PaneSplitter() : splitter(520, 260, nullptr)
    {
        for (QWidget*& pane : panes) {
            pane = new QWidget(&splitter);
            pane->setMinimumSize(1, 1);
            pane->setAutoFillBackground(true);
        }
        splitter.setStretchFactor(1, 1);
        ShowAt(1200);
    }

    void ShowAt(int width)
    {
        splitter.resize(width, 300);
        splitter.show();
        QCoreApplication::processEvents();
    }
    int Left() const { return splitter.sizes()[0]; }
    int Right() const { return splitter.sizes()[1]; }
    /// Whether a place outside of the panes has the colour of the frame.
    bool Framed(QPoint at)
    {
        return splitter.grab().toImage().pixelColor(at) == splitter.palette().color(QPalette::Highlight);
    }

    CPaneSplitter splitter;
    QWidget* panes[2]{};
};

TEST_F(PaneSplitter, LetsTheLeftPaneGiveWayFirst)
{
    EXPECT_EQ(520, Left());
    ShowAt(900);
    EXPECT_EQ(520, Left());
    EXPECT_LT(260, Right());
    ShowAt(700);
    EXPECT_EQ(260, Right());
    EXPECT_GT(520, Left());
    ShowAt(533);
    EXPECT_EQ(260, Right());
    ShowAt(200);
    EXPECT_EQ(1, Left()) << "and the right one after it";
    ShowAt(1200);
    EXPECT_EQ(520, Left()) << "it has its width back";
}

TEST_F(PaneSplitter, KeepsWhatTheUserPulledItTo)
{
    const QPoint handle(splitter.handle(1)->rect().center());
    QTest::mousePress(splitter.handle(1), Qt::LeftButton, {}, handle);
    QTest::mouseMove(splitter.handle(1), handle - QPoint(200, 0));
    QTest::mouseRelease(splitter.handle(1), Qt::LeftButton, {}, handle - QPoint(200, 0));
    const int pulled = Left();
    EXPECT_NEAR(320, pulled, 8);
    ShowAt(1000);
    EXPECT_EQ(pulled, Left());
    ShowAt(400);
    EXPECT_EQ(260, Right());
    ShowAt(1300);
    EXPECT_EQ(pulled, Left());
}

TEST_F(PaneSplitter, FramesTheActivePaneOutsideOfIt)
{
    splitter.ShowActive(panes[0]);
    const int rightEdge = splitter.width() - 1;
    EXPECT_TRUE(Framed({0, 100}));
    EXPECT_TRUE(Framed({1, 100}));
    EXPECT_TRUE(Framed({100, 0}));
    EXPECT_TRUE(Framed(panes[0]->geometry().topRight() + QPoint(1, 100))) << "on the handle";
    EXPECT_FALSE(Framed(panes[0]->geometry().topLeft() + QPoint(0, 0))) << "no pixel of the pane";
    EXPECT_FALSE(Framed({rightEdge, 100}));
    splitter.ShowActive(panes[1]);
    EXPECT_FALSE(Framed({0, 100}));
    EXPECT_TRUE(Framed({rightEdge, 100}));
    EXPECT_TRUE(Framed(panes[1]->geometry().topLeft() + QPoint(-1, 100)));
    EXPECT_FALSE(Framed(panes[0]->geometry().topRight() + QPoint(1, 100)));
}

} // namespace

#include "windows/CompareWindow.h"

#include "support/SampleScopes.h"
#include "views/ResultList.h"
#include "windows/SectionPair.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include <cmath>

namespace {

class CompareWindow : public testing::Test {
protected:
    CompareWindow()
    {
        MakeRoundScope(present);
        MakeRoundScope(other);
        list = window.findChild<CResultList*>();
    }

    void Show()
    {
        window.ShowPresent(present);
        window.ShowOther(other, "other.orreva.xml");
    }

    COrrevaData present;
    COrrevaData other;
    CCompareWindow window{nullptr};
    CResultList* list;
};

TEST_F(CompareWindow, ShowsWhatDiffersAndTheRestIfWanted)
{
    other.SetTitle("Other");
    other.SetStarDiameter(0.06);
    Show();
    ASSERT_EQ(2, list->RowCount());
    EXPECT_EQ("Title", list->Cell(0, 0));
    EXPECT_EQ("Neues Teleskop", list->Cell(0, 1));
    EXPECT_EQ("Other", list->Cell(0, 2));
    EXPECT_EQ("Diameter of the artificial star", list->Cell(1, 0));
    EXPECT_EQ("0.05", list->Cell(1, 1));
    EXPECT_EQ("0.06", list->Cell(1, 2));
    EXPECT_EQ("mm", list->Cell(1, 3));

    window.findChild<QCheckBox*>()->click();
    EXPECT_EQ(3 + 71, list->RowCount());
    EXPECT_EQ("Diameter of the artificial star", list->Cell(1, 0)) << "the differing ones stay first";
    EXPECT_EQ("Description", list->Cell(2, 0));
}

TEST_F(CompareWindow, FollowsThePresentDesign)
{
    Show();
    EXPECT_EQ(0, list->RowCount());
    present.SetStarPrecision(25);
    window.ShowPresent(present);
    EXPECT_EQ(2, list->RowCount()) << "and the distance";
}

TEST_F(CompareWindow, RowsCopyAsTabSeparatedText)
{
    other.SetStarDiameter(-HUGE_VAL);
    Show();
    window.show();
    list->selectAll();
    list->CopySelection();
    EXPECT_EQ(QString("Diameter of the artificial star\t0.05\t\u2013\tmm"),
              QGuiApplication::clipboard()->text().trimmed());
}

TEST_F(CompareWindow, TheTwoCrossSectionsReachTheEdgesAndLeaveAGap)
{
    CSectionPair pair;
    pair.ShowDesigns(present, other);
    pair.resize(406, 150); // twice 200, and 6 between
    const QImage image = pair.grab().toImage();
    const QColor ground = image.pixelColor(1, 1);
    const QColor gap = pair.palette().color(QPalette::Window);
    ASSERT_NE(ground, gap);
    for (const int x : {0, 199, 206, 405}) {
        EXPECT_EQ(ground, image.pixelColor(x, 1)) << x;
    }
    for (const int x : {200, 205}) {
        EXPECT_EQ(gap, image.pixelColor(x, 1)) << x;
    }
    // The same design twice is the same picture twice.
    EXPECT_EQ(image.copy(0, 0, 200, 150), image.copy(206, 0, 200, 150));
}

TEST_F(CompareWindow, AnyDesignIsShown)
{
    window.show();
    for (const RecordSetter setter : kScopeSetters) {
        for (const double odd : kOddNumbers) {
            MakeRoundScope(other);
            (other.*setter)(odd);
            Show();
            EXPECT_FALSE(window.grab().isNull());
        }
    }
}

} // namespace

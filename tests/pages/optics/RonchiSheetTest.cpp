#include "pages/sheet/SheetHelpers.h"

#include "document/Commands.h"
#include "pages/optics/PropertySheetMatchingRonchi.h"
#include "views/MatchingRonchiWidget.h"

namespace {

template <class Base>
class RonchiSheetOf : public OnSavedTelescope<Base> {
protected:
    template <class Act>
    void InRonchiSheet(Act act)
    {
        this->template InSheet<CPropertySheetMatchingRonchi>(command_id::kMatchingRonchi, act);
    }
};

class RonchiSheet : public RonchiSheetOf<AppFixture> {};
class RonchiSheetGerman : public RonchiSheetOf<GermanAppFixture> {};

QImage Simulation(CPropertySheet& sheet)
{
    return FindControl<CMatchingRonchiWidget>(&PageOf(sheet, 1), 1043)->grab().toImage();
}

/// The line of text above the patterns.
QImage Limits(const QImage& simulation) { return simulation.copy(0, 0, simulation.width(), 16); }

bool HasBlack(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::black)) {
                return true;
            }
        }
    }
    return false;
}

void ExpectGermanTexts(CPropertySheetMatchingRonchi& sheet)
{
    ASSERT_EQ(2, sheet.PageCount());
    EXPECT_EQ("Setup", TabTitle(sheet, 0));
    EXPECT_EQ("Simulation", TabTitle(sheet, 1));
    EXPECT_EQ("Gitter (Linien/mm)", LabelOf(PageOf(sheet, 0), 1012));
    EXPECT_EQ(Utf8("Konische Konstante (0 = Sphäre, 1 = Parabel)"), LabelOf(PageOf(sheet, 0), 1013));
}

TEST_F(RonchiSheet, Texts)
{
    InRonchiSheet([](CPropertySheetMatchingRonchi& sheet) {
        EXPECT_EQ("Properties", sheet.windowTitle());
        ExpectGermanTexts(sheet);
    });
}

TEST_F(RonchiSheetGerman, Texts)
{
    InRonchiSheet([](CPropertySheetMatchingRonchi& sheet) {
        EXPECT_EQ("Eigenschaftsblatt", sheet.windowTitle());
        ExpectGermanTexts(sheet);
    });
}

TEST_F(RonchiSheet, FieldsReachTheRecordOnApplyAlone)
{
    Main().SetModified(0);
    InRonchiSheet([&](CPropertySheetMatchingRonchi& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        EXPECT_EQ("5.00", Text(page, 1012));
        EXPECT_EQ("1.00", Text(page, 1013));
        EXPECT_FALSE(SheetButton(sheet, "apply").isEnabled());
        Type(page, 1012, "7,5");
        EXPECT_TRUE(SheetButton(sheet, "apply").isEnabled());
        Type(page, 1013, "0.25");
        EXPECT_EQ(5.0, Main().GetRonchiGrating());
        QTest::mouseClick(&SheetButton(sheet, "apply"), Qt::LeftButton);
        EXPECT_EQ(7.5, Main().GetRonchiGrating()) << "a comma counts as a point";
        EXPECT_EQ(0.25, Main().GetRonchiConstant());
        Type(page, 1012, "");
        QTest::mouseClick(&SheetButton(sheet, "ok"), Qt::LeftButton);
    });
    EXPECT_EQ(0.0, Main().GetRonchiGrating());
    EXPECT_EQ(1, Main().IsModified());
}

TEST_F(RonchiSheet, TheSheetLeavesRoomForItsFrameOnALowScreen)
{
    InRonchiSheet([](CPropertySheetMatchingRonchi& sheet) {
        const int high = sheet.screen()->availableSize().height();
        ASSERT_GT(830, high) << "the picture asks for 790 pixels, a title bar for some 40";
        EXPECT_GE(high - 40, sheet.height());
        EXPECT_EQ(690, sheet.width());
    });
}

TEST_F(RonchiSheet, CancelStoresNothing)
{
    Main().SetModified(0);
    InRonchiSheet([](CPropertySheetMatchingRonchi& sheet) { Type(PageOf(sheet, 0), 1012, "9"); });
    EXPECT_EQ(5.0, Main().GetRonchiGrating());
    EXPECT_EQ(0, Main().IsModified());
}

TEST_F(RonchiSheet, ResetsWriteAtOnce)
{
    Main().SetRonchiGrating(8);
    Main().SetRonchiConstant(0.5);
    InRonchiSheet([](CPropertySheetMatchingRonchi& sheet) {
        const QWidget& page = PageOf(sheet, 0);
        EXPECT_EQ("8.00", Text(page, 1012));
        Click(page, 1058);
        EXPECT_EQ("5.00", Text(page, 1012));
        EXPECT_EQ("0.50", Text(page, 1013));
        EXPECT_TRUE(SheetButton(sheet, "apply").isEnabled());
        Click(page, 1059);
        EXPECT_EQ("1.00", Text(page, 1013));
    });
    EXPECT_EQ(5.0, Main().GetRonchiGrating());
    EXPECT_EQ(1.0, Main().GetRonchiConstant());
}

TEST_F(RonchiSheet, TheSimulationShowsLimitsAndNinePatterns)
{
    InRonchiSheet([](CPropertySheetMatchingRonchi& sheet) {
        const QImage image = Simulation(sheet);
        ASSERT_LE(640, image.width());
        ASSERT_LE(680, image.height());
        EXPECT_TRUE(HasBlack(Limits(image)));
        for (const int y : {150, 360, 570}) {
            for (const int x : {110, 320, 530}) {
                EXPECT_TRUE(HasBlack(image.copy(x - 50, y - 50, 100, 100))) << x << ' ' << y;
            }
        }
    });
}

TEST_F(RonchiSheet, ARepaintAtAnotherTimeChangesTheDotsButNotTheLimits)
{
    InRonchiSheet([](CPropertySheetMatchingRonchi& sheet) {
        const QImage first = Simulation(sheet);
        QTest::qWait(1100); // the seed is the time in seconds
        const QImage second = Simulation(sheet);
        EXPECT_NE(first, second);
        EXPECT_EQ(Limits(first), Limits(second));
    });
}

TEST_F(RonchiSheet, TheWidgetKeepsTheValuesOfItsFirstShowing)
{
    // A grating of 0 counts as a very coarse one: each pattern is lit throughout. One of 20 lines is not.
    const auto dots = [](const QImage& image) {
        int black = 0;
        for (int y = 470; y < 670; ++y) {
            for (int x = 430; x < 630; ++x) {
                black += image.pixelColor(x, y) == QColor(Qt::black) ? 1 : 0;
            }
        }
        return black;
    };
    InRonchiSheet([&](CPropertySheetMatchingRonchi& sheet) {
        const int before = dots(Simulation(sheet));
        Type(PageOf(sheet, 0), 1012, "0");
        QTest::mouseClick(&SheetButton(sheet, "apply"), Qt::LeftButton);
        EXPECT_EQ(0.0, Main().GetRonchiGrating());
        EXPECT_NEAR(before, dots(Simulation(sheet)), before / 10.0);
    });
    InRonchiSheet([&](CPropertySheetMatchingRonchi& sheet) {
        Main().SetRonchiGrating(5);
        const int fine = dots(Simulation(sheet));
        sheet.reject();
        Main().SetRonchiGrating(0);
        InRonchiSheet(
            [&](CPropertySheetMatchingRonchi& coarse) { EXPECT_LT(fine * 3 / 2, dots(Simulation(coarse))); });
    });
}

TEST_F(RonchiSheet, AMirrorWithoutLimitsPaintsWithoutTheLine)
{
    for (const double D : {0.0, -1.0, 1e-300, 1e300}) {
        for (const double F : {0.0, 1500.0, 1e300}) {
            Main().SetMirrorDiameter(D);
            Main().SetFocalLength(F);
            InRonchiSheet([&](CPropertySheetMatchingRonchi& sheet) {
                const QImage image = Simulation(sheet);
                EXPECT_FALSE(image.isNull()) << D << ' ' << F;
                if (D == 0) {
                    EXPECT_FALSE(HasBlack(Limits(image)));
                }
            });
        }
    }
}

TEST_F(RonchiSheet, OddTextsAreSurvived)
{
    for (const int control : {1012, 1013}) {
        for (const QString& text : OddTexts()) {
            InRonchiSheet([&](CPropertySheetMatchingRonchi& sheet) {
                Paste(PageOf(sheet, 0), control, text);
                QTest::mouseClick(&SheetButton(sheet, "apply"), Qt::LeftButton);
                EXPECT_FALSE(Simulation(sheet).isNull());
            });
        }
    }
}

} // namespace

#include "app/AppFixture.h"
#include "pages/sheet/SheetHelpers.h"
#include "views/PaintCounter.h"

#include "document/Commands.h"
#include "views/LeftView.h"
#include "views/OrrevaView.h"

#include <QGroupBox>

namespace {

class StarDialog : public AppFixture, public testing::WithParamInterface<int> {
protected:
    StarDialog() : AppFixture(GetParam())
    {
        MakeTelescope();
        Record().SetMirrorDiameter(200);
        Record().SetFocalLength(1200);
        Record().SetModified(0);
    }

    COrrevaData& Record() const { return app->Document().main_record; }
};

INSTANTIATE_TEST_SUITE_P(BothLanguages, StarDialog, testing::Values(kEnglish, kGerman));

TEST_P(StarDialog, OpensInGermanFromTheRecord)
{
    InDialogOf(command_id::kArtificialStar, [](QDialog& dialog) {
        EXPECT_EQ(144, dialog.property(kDialogId).toInt());
        EXPECT_EQ("Mindestabstand künstlicher Stern", dialog.windowTitle());
        EXPECT_EQ("Maximaler Fehler", dialog.findChild<QGroupBox*>("errorGroup")->title());
        EXPECT_EQ("Auflösungsvermögen", dialog.findChild<QGroupBox*>("resolutionGroup")->title());
        const char* const kLabels[] = {"Genauigkeit\n(Lambda/x)", "Mindestabstand",
                                       "Durchmesser des Sterns (mm)", "Mindestabstand"};
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(kLabels[i], LabelOf(dialog, 1000 + i));
        }
        EXPECT_EQ("20.00", Text(dialog, 1000));
        EXPECT_EQ("20.00", FindControl<QLineEdit>(&dialog, 1000)->selectedText()) << "to type over it";
        EXPECT_EQ("73.87m", Text(dialog, 1001));
        EXPECT_EQ("0.050", Text(dialog, 1002));
        EXPECT_EQ("179.36m (Sparrows)\n149.47m (Rayleigh)\n177.81m (Dawes)", Text(dialog, 1003));
    });
    EXPECT_EQ(0, Record().IsModified());
}

TEST_P(StarDialog, StoresAndRecomputesAtEveryChange)
{
    InDialogOf(command_id::kArtificialStar, [this](QDialog& dialog) {
        Type(dialog, 1000, "10,9");
        EXPECT_EQ("36.93m", Text(dialog, 1001)) << "the comma ends the number";
        EXPECT_EQ(10.0, Record().GetStarPrecision());
        EXPECT_EQ(1, Record().IsModified());
        EXPECT_EQ("179.36m (Sparrows)\n149.47m (Rayleigh)\n177.81m (Dawes)", Text(dialog, 1003));

        Record().SetModified(0);
        Type(dialog, 1002, "0.1");
        EXPECT_EQ("358.72m (Sparrows)\n298.93m (Rayleigh)\n355.63m (Dawes)", Text(dialog, 1003));
        EXPECT_EQ(0.1, Record().GetStarDiameter());
        EXPECT_EQ(1, Record().IsModified());
        EXPECT_EQ("36.93m", Text(dialog, 1001));

        Type(dialog, 1000, "0");
        EXPECT_EQ("0.00m", Text(dialog, 1001));
        Type(dialog, 1002, "");
        EXPECT_EQ("0.00m (Sparrows)\n0.00m (Rayleigh)\n0.00m (Dawes)", Text(dialog, 1003));
    });
}

TEST_P(StarDialog, ResultsAreReadOnlyAndTheButtonEnds)
{
    InNextDialog<QDialog>([](QDialog& dialog) {
        QTest::keyClicks(FindControl<QWidget>(&dialog, 1001), "1");
        QTest::keyClicks(FindControl<QWidget>(&dialog, 1003), "1");
        EXPECT_EQ("73.87m", Text(dialog, 1001));
        EXPECT_EQ("179.36m (Sparrows)\n149.47m (Rayleigh)\n177.81m (Dawes)", Text(dialog, 1003));
        auto* const finish = dialog.findChild<QPushButton*>();
        ASSERT_NE(nullptr, finish);
        EXPECT_EQ("Beenden", finish->text());
        QTest::mouseClick(finish, Qt::LeftButton);
        EXPECT_FALSE(dialog.isVisible());
    });
    Choose(command_id::kArtificialStar);
    EXPECT_EQ(0, Record().IsModified());
}

TEST_P(StarDialog, RedrawsNoView)
{
    InDialogOf(command_id::kArtificialStar, [this](QDialog& dialog) {
        PaintCounter summary(app->Frame().LeftView());
        PaintCounter section(app->Frame().RightView());
        Type(dialog, 1000, "5");
        Type(dialog, 1002, "0.2");
        EXPECT_EQ(0, summary.Take());
        EXPECT_EQ(0, section.Take());
    });
}

TEST_P(StarDialog, ATelescopeOfNothingDoesNoHarm)
{
    Record().SetMirrorDiameter(0);
    Record().SetFocalLength(0);
    InDialogOf(command_id::kArtificialStar, [](QDialog& dialog) {
        Type(dialog, 1000, "1e999");
        Type(dialog, 1002, "-1e308");
        EXPECT_TRUE(Text(dialog, 1001).endsWith("m"));
        EXPECT_TRUE(Text(dialog, 1003).endsWith("(Dawes)"));
    });
}

TEST_P(StarDialog, CentreMarksComeInGermanToo)
{
    Record().SetSecondaryDiameter(1);
    InDialogOf<QMessageBox>(command_id::kCentreMarks, [](QMessageBox& box) {
        EXPECT_EQ("Maximaler Durchmesser der Markierung auf dem Hauptspiegel: 0.00mm\n"
                  "Maximaler Durchmesser der Markierung auf dem Fangspiegel: 0.00mm",
                  box.text());
    });
}

} // namespace

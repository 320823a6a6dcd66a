#include "app/AppFixture.h"
#include "views/WidgetPixels.h"

#include "document/Commands.h"
#include "drawing/FieldPicture.h"
#include "support/LogRecorder.h"
#include "support/SampleScopes.h"
#include "views/FieldSimulationCtrl.h"

#include <QPushButton>

#include <numeric>

namespace {

class FieldSimulationDlg : public AppFixture, public testing::WithParamInterface<int> {
protected:
    FieldSimulationDlg() : AppFixture(GetParam()) { MakeTelescope(); }

    COrrevaData& Record() const { return app->Document().main_record; }

    static CFieldSimulationCtrl& Field(const QDialog& dialog)
    {
        return *FindControl<CFieldSimulationCtrl>(&dialog, 1089);
    }

    /// The dots on the standard error stream while `act` runs.
    static std::ptrdiff_t DotsOf(const std::function<void()>& act)
    {
        const LogRecorder log; // its lines go to the same stream
        testing::internal::CaptureStderr();
        act();
        const std::string text = testing::internal::GetCapturedStderr();
        return std::count(text.begin(), text.end(), '.');
    }
};

INSTANTIATE_TEST_SUITE_P(BothLanguages, FieldSimulationDlg, testing::Values(kEnglish, kGerman));

TEST_P(FieldSimulationDlg, IsGermanAndBothButtonsClose)
{
    Record().SetModified(0);
    for (const char* const name : {"OK", "Abbrechen"}) {
        InNextDialog<QDialog>([name](QDialog& dialog) {
            EXPECT_EQ(145, dialog.property(kDialogId).toInt());
            EXPECT_EQ("Vignettierung des Gesichtsfeldes", dialog.windowTitle());
            const auto buttons = dialog.findChildren<QPushButton*>();
            ASSERT_EQ(2, buttons.size());
            QPushButton* const button = buttons[buttons[0]->text() == name ? 0 : 1];
            EXPECT_EQ(name, button->text());
            QTest::mouseClick(button, Qt::LeftButton);
            EXPECT_FALSE(dialog.isVisible());
            dialog.close();
        });
        Choose(command_id::kFieldSimulation);
    }
    EXPECT_EQ(0, Record().IsModified());
}

TEST_P(FieldSimulationDlg, ShowsTheFieldWithItsScale)
{
    InDialogOf(command_id::kFieldSimulation, [this](QDialog& dialog) {
        CFieldSimulationCtrl& field = Field(dialog);
        EXPECT_LE(520, field.height());
        EXPECT_LE(600, field.width());
        const FieldTable table = CountField(ReadFieldInputs(Record()), {});
        const QImage shown = Shown(field);
        EXPECT_EQ(Painted(field, [&](Surface& surface) { DrawFieldPicture(surface, table); }), shown);
        EXPECT_LT(250, shown.pixelColor(260, 260).red()) << "as bright as the axis";
        EXPECT_GT(shown.pixelColor(300, 260).red(), shown.pixelColor(500, 260).red());
    });
}

TEST_P(FieldSimulationDlg, TheDiscIs500PixelsWideAroundItsCentre)
{
    InDialogOf(command_id::kFieldSimulation, [](QDialog& dialog) {
        const QImage shown = Shown(Field(dialog));
        std::vector<int> across;
        std::vector<int> down;
        for (int i = 0; i < 514; ++i) { // the labels stand beyond
            if (shown.pixelColor(i, 260) != Qt::white) {
                across.push_back(i);
            }
            if (shown.pixelColor(260, i) != Qt::white) {
                down.push_back(i);
            }
        }
        // 250 pixels on either side of the line between the pixels 259 and 260.
        std::vector<int> disc(500);
        std::iota(disc.begin(), disc.end(), 10);
        EXPECT_EQ(disc, across);
        EXPECT_EQ(disc, down);
    });
}

TEST_P(FieldSimulationDlg, DotsTellTheCountsWhichAreMadeOnceForATelescope)
{
    InDialogOf(command_id::kFieldSimulation, [this](QDialog& dialog) {
        CFieldSimulationCtrl& field = Field(dialog);
        field.grab();
        EXPECT_EQ(0, DotsOf([&] { field.grab(); })) << "counted before";
        Record().SetSecondaryDiameter(60);
        EXPECT_EQ(251, DotsOf([&] { field.grab(); }));
        EXPECT_EQ(0, DotsOf([&] { field.grab(); }));
    });
}

TEST_P(FieldSimulationDlg, AFieldWithoutLightIsEmpty)
{
    Record().SetSecondaryDiameter(0);
    InDialogOf(command_id::kFieldSimulation, [](QDialog& dialog) {
        CFieldSimulationCtrl& field = Field(dialog);
        EXPECT_EQ(Painted(field,
                          [&](Surface& surface) {
                              surface.FillRect({0, 0, field.width(), field.height()}, kWhite);
                          }),
                  Shown(field));
    });
}

TEST_P(FieldSimulationDlg, OddNumbersPaint)
{
    COrrevaData usual;
    MakeDefaultScope(usual);
    InDialogOf(command_id::kFieldSimulation, [&](QDialog& dialog) {
        for (const RecordSetter set : kScopeSetters) {
            for (const double value : kOddNumbers) {
                (Record().*set)(value);
                EXPECT_FALSE(Field(dialog).grab().isNull());
            }
            Record().SetModified(0); // no question about saving
            usual.CopyTo(Record());
        }
    });
}

TEST_P(FieldSimulationDlg, AWidgetWithoutATelescopeIsBlank)
{
    CFieldSimulationCtrl field;
    EXPECT_EQ(0, DotsOf([&] { EXPECT_FALSE(field.grab().isNull()); }));
}

} // namespace

#include "pages/sheet/SheetFixture.h"

#include <QComboBox>

namespace {

class MisleadingLabels : public SheetFixture {};
class MisleadingLabelsGerman : public GermanSheetFixture {};

/// A field explains itself the same way under the pointer and to Shift+F1.
void ExpectExplained(const QWidget* field, const char* text)
{
    ASSERT_NE(nullptr, field);
    EXPECT_EQ(QString::fromUtf8(text), field->toolTip());
    EXPECT_EQ(field->toolTip(), field->whatsThis());
}

TEST_F(MisleadingLabels, TheSectorsListTheFieldsLabelsAndTheVerdictExplainThemselves)
{
    MakeTelescope();
    InDialogOf(32791, [](QDialog& dialog) {
        ExpectExplained(dialog.findChild<QComboBox*>(),
                        "The third entry takes an angle, whatever its name. The others are not ready.");
    });
    InDialogOf(32796, [](QDialog& dialog) {
        ExpectExplained(FindControl<QWidget>(&dialog, 1089),
                        "Half a percent is added before rounding: 101% means 100%.");
    });
    InSheet([](CMyPropertySheet0& sheet) {
        ExpectExplained(FindControl<QWidget>(&Visit(sheet, kCell), 1031),
                        "\"6 points\" means the support on nine points.");
    });
}

TEST_F(MisleadingLabels, ListsAndChoicesExplainThemselves)
{
    MakeTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        ExpectExplained(Visit(sheet, kPrimary).findChild<QWidget*>("results"),
                        "The names beside the resolution are mixed up: 116/D is Dawes, 138/D is Rayleigh.");
        ExpectExplained(Visit(sheet, kEyepieces).findChild<QWidget*>("results"),
                        "The focal length is in millimetres, whatever stands behind it.");
    });
    InDialogOf(32779, [](QDialog& dialog) {
        for (const char* const choice : {"hideMissing", "greyMissing"}) {
            ExpectExplained(dialog.findChild<QWidget*>(choice),
                            "OK turns the setting round, whichever of the two is chosen. Cancel leaves it.");
        }
    });
    InDialogOf(32795, [](QDialog& dialog) {
        ExpectExplained(
            FindControl<QWidget>(&dialog, 1003),
            "Die Entfernungen sind zehnmal zu groß: Auf dem Weg zu Metern wird durch 100 geteilt statt "
            "durch 1000.");
    });
}

TEST_F(MisleadingLabelsGerman, TheSectorsListTheFieldsLabelsAndTheVerdictExplainThemselves)
{
    MakeTelescope();
    InDialogOf(32791, [](QDialog& dialog) {
        ExpectExplained(dialog.findChild<QComboBox*>(),
                        "Der dritte Eintrag nimmt einen Winkel. Die anderen sind noch nicht fertig.");
    });
    InDialogOf(32796, [](QDialog& dialog) {
        ExpectExplained(FindControl<QWidget>(&dialog, 1089),
                        "Vor dem Runden wird ein halbes Prozent addiert: 101% heißt 100%.");
    });
    InSheet([](CMyPropertySheet0& sheet) {
        ExpectExplained(FindControl<QWidget>(&Visit(sheet, kCell), 1031),
                        "„6 Punkt Spiegelzelle“ meint die Auflage auf neun Punkten.");
        ExpectExplained(
            Visit(sheet, kPrimary).findChild<QWidget*>("results"),
            "Die Namen neben der Auflösung sind vertauscht: 116/D ist Dawes, 138/D ist Rayleigh.");
        ExpectExplained(Visit(sheet, kEyepieces).findChild<QWidget*>("results"),
                        "Die Brennweite ist in Millimetern, was auch dahinter steht.");
    });
    InDialogOf(32779, [](QDialog& dialog) {
        ExpectExplained(dialog.findChild<QWidget*>("hideMissing"),
                        "OK kehrt die Einstellung um, was auch gewählt ist. Abbrechen lässt sie.");
    });
}

} // namespace

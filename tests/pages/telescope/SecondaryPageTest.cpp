#include "pages/sheet/SheetFixture.h"
#include "windows/IlluminationWindow.h"

#include <QTableWidget>

namespace {

class SecondaryPage : public SheetFixture {};
class SecondaryPageGerman : public GermanSheetFixture {};

using Lines = std::vector<std::string>;

TEST_F(SecondaryPage, ListsTheFieldTheObstructionAndTheMinorAxis)
{
    MakeMeasuredTelescope();
    OnPage(kSecondary, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ("12.00", TextOf(page, 1049));
        EXPECT_EQ("0.5730", TextOf(page, 1048));
        EXPECT_TRUE(FindControl<QLineEdit>(&page, 1048)->isReadOnly());
        EXPECT_EQ("50.00", TextOf(page, 1018));
        EXPECT_EQ("Size of Secondary correct.", TextOf(page, 1054));
        const Lines expected{"Wanted 100% FOV (Edberg) | 12.0 mm",
                             "Wanted minimal Diameter of Minor Axis (Peters && Pike) | 42.2 mm",
                             " | ",
                             "Linear Obstruktion | 25.00 %",
                             "Areal Obstruktion | 6.25 %",
                             "Offset (Francis) | 2.08 mm",
                             "100% FOV in mm (Edberg) | 21.25 mm",
                             "100% FOV in Degrees (Edberg) | 1.01°"};
        EXPECT_EQ(expected, Rows(page));
    });
}

TEST_F(SecondaryPage, DetailsBringTheOtherAuthorsAndTheIllumination)
{
    MakeMeasuredTelescope();
    OnPage(kSecondary, "cancel", [](CPropertyPage& page) {
        Click(page, 1050);
        const Lines rows = Rows(page);
        ASSERT_EQ(39u, rows.size()) << "19 and the 20 points of at least 60 per cent";
        EXPECT_EQ("12.0 mm", Value(page, "Wanted 100% FOV (Berry)"));
        EXPECT_EQ("44.2 mm", Value(page, "Wanted minimal Diameter of Minor Axis (Berry)"));
        EXPECT_EQ("42.6 mm", Value(page, "Wanted minimal Diameter of Minor Axis (Dakin)"));
        EXPECT_EQ("32.2 mm",
                  Value(page, "Minimal Diameter of Minor Axis for a 100% illuminated Field of 0 mm"));
        EXPECT_EQ("1.86 mm", Value(page, "Offset (Masson)"));
        EXPECT_EQ("1.88 mm", Value(page, "Offset (Dakin)"));
        EXPECT_EQ("1.87 mm", Value(page, "Offset (Varnholt)"));
        EXPECT_EQ("17.83 mm", Value(page, "100% FOV in mm (Berry)"));
        EXPECT_EQ("0.85°", Value(page, "100% FOV in Grad (nach Berry)"));
        EXPECT_EQ("Illumination at 0.0 mm FOV (0.00°) | 100.0%", rows[19]) << "the centre above the edge";
        EXPECT_EQ("Illumination at 25.0 mm FOV (1.19°) | 97.2% (-0.0 mag)", rows[29]);
        EXPECT_EQ("Illumination at 47.5 mm FOV (2.27°) | 62.7% (-0.5 mag)", rows[38]);
    });
}

TEST_F(SecondaryPage, TheCurveIsThatOfTheTypedValues)
{
    MakeMeasuredTelescope();
    OnPage(kSecondary, "cancel", [](CPropertyPage& page) {
        FindControl<QLineEdit>(&page, 1018)->setText("60.5");
        FindControl<QPushButton>(&page, 33042)->click();
        auto* const window = page.window()->findChild<CIlluminationWindow*>();
        ASSERT_NE(nullptr, window);
        EXPECT_TRUE(window->isVisible());
        auto* const axes = window->findChild<QTableWidget*>();
        const auto isListed = [axes](const char* axis) {
            return !axes->findItems(axis, Qt::MatchExactly).isEmpty();
        };
        EXPECT_TRUE(isListed("60.50 mm"));
        FindControl<QLineEdit>(&page, 1018)->setText("61.5");
        FindControl<QPushButton>(&page, 33042)->click();
        EXPECT_TRUE(isListed("61.50 mm"));
        EXPECT_EQ(1, page.window()->findChildren<CIlluminationWindow*>().size());
    });
    EXPECT_EQ(50, app->Document().main_record.GetSecondaryDiameter());
}

TEST_F(SecondaryPageGerman, ListsInGerman)
{
    MakeMeasuredTelescope();
    OnPage(kSecondary, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ("Der Fangspiegel ist ausreichend dimensioniert.", TextOf(page, 1054));
        EXPECT_EQ("12.0 mm", Value(page, "Gewünschtes 100% FOV (Edberg)"));
        EXPECT_EQ("25.00 %", Value(page, "Lineare Obstruktion"));
        EXPECT_EQ("6.25 %", Value(page, "Flächenbezogene Obstruktion"));
        Click(page, 1050);
        EXPECT_EQ("Ausleuchtung bei 0.0 mm FOV (0.00°) | 100.0%", Rows(page)[19]);
    });
}

TEST_F(SecondaryPage, TypingRebuildsTheVerdict)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kSecondary);
        Type(page, 1018, "10");
        EXPECT_EQ("Secondary to mall..", TextOf(page, 1054));
        Type(page, 1018, "150");
        EXPECT_EQ("Linear Obstruction of more than 50%.", TextOf(page, 1054));
        EXPECT_EQ("75.00 %", Value(page, "Linear Obstruktion"));
        Type(page, 1018, "50");
        Type(page, 1049, "20");
        EXPECT_EQ("0.9549", TextOf(page, 1048));
        EXPECT_EQ("20.0 mm", Value(page, "Wanted 100% FOV (Edberg)"));
        EXPECT_EQ("Size of Secondary correct.", TextOf(page, 1054));
        Type(page, 1049, "21.3");
        EXPECT_EQ("Secondary to mall..", TextOf(page, 1054)) << "21.25 mm are lit";
        Type(page, 1049, "15");
        EXPECT_EQ(12.0, Record().GetWanted100PercentFow());
        Press(sheet, "apply");
        EXPECT_EQ(15.0, Record().GetWanted100PercentFow());
        EXPECT_EQ(50.0, Record().GetSecondaryDiameter());
    });
}

TEST_F(SecondaryPageGerman, EveryVerdict)
{
    MakeMeasuredTelescope();
    OnPage(kSecondary, "cancel", [](CPropertyPage& page) {
        Type(page, 1018, "10");
        EXPECT_EQ(
            "Der Fangspiegel ist zu klein, um überhaupt ein ausgeleuchtetes Bildfeld von 100% zu erzeugen.",
            TextOf(page, 1054));
        Type(page, 1018, "35");
        EXPECT_EQ("Der Fangspiegel ist zu klein um das gewümschte Bildfeld voll auszuleuchten.",
                  TextOf(page, 1054));
        Type(page, 1018, "150");
        EXPECT_EQ("Die lineare Obstruktion beträgt mehr als 50%.", TextOf(page, 1054));
    });
}

TEST_F(SecondaryPage, ResetsBringTheProposedValues)
{
    MakeMeasuredTelescope();
    Record().SetWanted100PercentFow(20);
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kSecondary);
        Click(page, 1056);
        EXPECT_EQ("12.00", TextOf(page, 1049));
        EXPECT_EQ("0.5730", TextOf(page, 1048));
        EXPECT_EQ("12.0 mm", Value(page, "Wanted 100% FOV (Edberg)"));
        Type(page, 1018, "1");
        Click(page, 1057);
        EXPECT_EQ(TextOf(page, 1018), QString::number(Record().secondary_diameter, 'f', 2).toStdString());
        EXPECT_EQ("Size of Secondary correct.", TextOf(page, 1054));
        EXPECT_TRUE(Button(sheet, "apply").isEnabled());
    });
}

TEST_F(SecondaryPage, ComingToTheFrontReadsTheWantedFieldAloneAndLeavesTheList)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kSecondary);
        Visit(sheet, kTube);
        Record().SetWanted100PercentFow(20);
        Record().SetSecondaryDiameter(60);
        Visit(sheet, kSecondary);
        EXPECT_EQ("20.00", TextOf(page, 1049));
        EXPECT_EQ("0.9549", TextOf(page, 1048));
        EXPECT_EQ("50.00", TextOf(page, 1018));
        EXPECT_EQ("12.0 mm", Value(page, "Wanted 100% FOV (Edberg)"));
        Type(page, 1018, "51");
        EXPECT_EQ("20.0 mm", Value(page, "Wanted 100% FOV (Edberg)"));
    });
}

TEST_F(SecondaryPage, TheWizardCarriesTheWantedFieldFromTheTube)
{
    InSheet(kNewDetailed, [](CMyPropertySheet0& sheet) {
        for (int i = 0; i < 4; ++i) {
            Press(sheet, "next");
        }
        EXPECT_EQ("12.00", TextOf(*sheet.Page(kSecondary), 1049));
        Press(sheet, "back");
        Press(sheet, "back");
        Type(*sheet.Page(kTube), 1049, "18");
        Press(sheet, "next");
        Press(sheet, "next");
        EXPECT_EQ("18.00", TextOf(*sheet.Page(kSecondary), 1049));
    });
}

TEST_F(SecondaryPage, ASecondaryTooLargeForTheTableShowsNoIllumination)
{
    MakeMeasuredTelescope();
    OnPage(kSecondary, "cancel", [](CPropertyPage& page) {
        Click(page, 1050);
        Type(page, 1018, "2000");
        EXPECT_EQ(19u, Rows(page).size());
        EXPECT_EQ("Linear Obstruction of more than 50%.", TextOf(page, 1054));
    });
}

} // namespace

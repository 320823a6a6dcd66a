#include "pages/sheet/SheetFixture.h"

namespace {

class CellPage : public SheetFixture {};
class CellPageGerman : public GermanSheetFixture {};

using Lines = std::vector<std::string>;

constexpr const char* kNotices[] = {
    "Klicke bitte unbedingt auf den Info-Button auf der linken Seite, bevor du die hier errechneten Werte in "
    "der Praxis verwendest!",
    "Achtung, in die Berechnung der Ergebnisse gehen auch alle aktuellen Veränderungen an den Daten ein. "
    "Diese "
    "sind im linken Teil des Hauptfensters evtl noch nicht sichtbar."};

bool HasNotices(const QWidget& page)
{
    return std::ranges::all_of(kNotices, [&](const char* notice) {
        return std::ranges::any_of(page.findChildren<QLabel*>(), [&](const QLabel* label) {
            return label->text() == QString::fromUtf8(notice);
        });
    });
}

TEST_F(CellPage, StaysEmptyUntilTheButtonIsPressed)
{
    MakeMeasuredTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kCell);
        EXPECT_TRUE(HasNotices(page));
        EXPECT_EQ(Lines{}, Rows(page));
        EXPECT_EQ("", TextOf(page, 1031));
        const Lines expected{"3 Point Support at the edge |   15.2",
                             "3 Point Support at 70% of radius |   43.3", "9 Point Support |  388.6",
                             "18 Point Support |  695.9"};
        for (int press = 0; press < 2; ++press) {
            Click(page, 1006);
            EXPECT_EQ(expected, Rows(page)) << "rows do not pile up";
            EXPECT_EQ("3 points of support at 70% Radius are OK,", TextOf(page, 1031));
        }
        EXPECT_FALSE(Button(sheet, "apply").isEnabled()) << "nothing is stored";
    });
}

TEST_F(CellPageGerman, ListAndVerdictAreGerman)
{
    MakeMeasuredTelescope();
    OnPage(kCell, "cancel", [](CPropertyPage& page) {
        EXPECT_TRUE(HasNotices(page));
        Click(page, 1006);
        const Lines expected{"3 Punkt Support am Rand |   15.2",
                             "3 Punkt Support bei 70% des Radius |   43.3", "9 Punkt Support |  388.6",
                             "18 Punkt Support |  695.9"};
        EXPECT_EQ(expected, Rows(page));
        EXPECT_EQ("Der Spiegel sollte auf einer 3 Punkt Spiegelzelle mit Punkten bei 70% des Radius gelagert "
                  "werden.",
                  TextOf(page, 1031));
    });
}

TEST_F(CellPage, TakesWhatOtherPagesHaveWritten)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kCell);
        Click(page, 1006);
        Type(Visit(sheet, kPrimary), 1010, "60");
        Visit(sheet, kCell);
        Click(page, 1006);
        EXPECT_EQ("3 points of support at 70% Radius are OK,", TextOf(page, 1031)) << "only typed so far";
        Press(sheet, "apply");
        EXPECT_EQ("3 points of support at 70% Radius are OK,", TextOf(page, 1031)) << "not by itself";
        Click(page, 1006);
        EXPECT_EQ("3 points of support at the edge are OK,", TextOf(page, 1031));
        Record().SetMirrorThickness(0);
        Click(page, 1006);
        EXPECT_EQ("18 points of support are not enough!", TextOf(page, 1031));
    });
}

TEST_F(CellPage, TheVerdictOf18PointsIsGermanInEnglishToo)
{
    MakeMeasuredTelescope();
    // d = 23.6, t = 1.4: the fits give 6.1 for nine points and 33.9 for eighteen.
    Record().SetMirrorDiameter(600);
    Record().SetMirrorThickness(36);
    OnPage(kCell, "cancel", [](CPropertyPage& page) {
        Click(page, 1006);
        EXPECT_EQ("Der Spiegel sollte auf einer 18 Punkt Spiegelzelle gelagert werden.", TextOf(page, 1031));
    });
}

} // namespace

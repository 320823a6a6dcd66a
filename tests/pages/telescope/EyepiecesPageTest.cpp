#include "pages/sheet/SheetFixture.h"
#include "support/Environment.h"

namespace {

/// Folders of data in which nothing is installed.
struct NoInstalledLists {
    Environment user{"XDG_DATA_HOME", "/nowhere/user"};
    Environment system{"XDG_DATA_DIRS", "/nowhere/system"};
};

class EyepiecesPage : public SheetFixture {
    NoInstalledLists nothing;
};
class EyepiecesPageGerman : public GermanSheetFixture {
    NoInstalledLists nothing;
};

using Lines = std::vector<std::string>;

QComboBox& Names(const QWidget& page) { return *FindControl<QComboBox>(&page, 1011); }

Lines Entries(const QWidget& page)
{
    Lines names;
    for (int i = 0; i < Names(page).count(); ++i) {
        names.push_back(Names(page).itemText(i).toStdString());
    }
    return names;
}

TEST_F(EyepiecesPage, ShowsWhatTheChosenEyepieceGives)
{
    folder.Write("eyepiece.dat", "# name, mm, degrees\r\n\r\nWide 20,20,65\r\nOrtho 12,12,45\r\n");
    MakeMeasuredTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kEyepieces);
        EXPECT_EQ((Lines{"Ortho 12", "Wide 20"}), Entries(page)) << "sorted";
        EXPECT_EQ(-1, Names(page).currentIndex());
        EXPECT_EQ(Lines{}, Rows(page));
        ChooseEntry(page, 1011, 0);
        const Lines expected{"Focal Length | 12.00°", "Apparent Filed of View | 45.00°",
                             "Magnification | 100.00", "Exit Pupil | 2.00", "Actual Field of View | 0.45°"};
        EXPECT_EQ(expected, Rows(page));
        ChooseEntry(page, 1011, 1);
        EXPECT_EQ("60.00", Value(page, "Magnification"));
        EXPECT_EQ(5u, Rows(page).size());
        EXPECT_FALSE(Button(sheet, "apply").isEnabled()) << "nothing is stored";
    });
}

TEST_F(EyepiecesPageGerman, ShowsGermanRowsAndNamesOfTheCodePage)
{
    folder.Write("eyepiece.dat", "zoom,8,60\nPl\xF6ssl 40,40,43\nAPO,10,70\nPLOssl,9,50\n");
    MakeMeasuredTelescope();
    OnPage(kEyepieces, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ((Lines{"APO", "PLOssl", "Plössl 40", "zoom"}), Entries(page)) << "capitals are folded";
        ChooseEntry(page, 1011, 2);
        const Lines expected{"Brennweite | 40.00°", "Scheinbares Gesichtsfeld | 43.00°",
                             "Vergrösserung | 30.00", "Austrittspupille | 6.67",
                             "Tatsächliches Gesichtsfeld | 1.43°"};
        EXPECT_EQ(expected, Rows(page));
    });
}

TEST_F(EyepiecesPage, AMissingFileIsAnEmptyList)
{
    MakeMeasuredTelescope();
    OnPage(kEyepieces, "ok", [](CPropertyPage& page) {
        EXPECT_EQ(0, Names(page).count());
        QTest::keyClick(&Names(page), Qt::Key_Down);
        EXPECT_EQ(Lines{}, Rows(page));
    });
}

QLabel& Places(const QWidget& page) { return *page.findChild<QLabel*>("places"); }
QPushButton& UseInstalled(const QWidget& page) { return *page.findChild<QPushButton*>("useInstalled"); }

TEST_F(EyepiecesPage, AnEmptyPageSaysWhereListsAreLookedFor)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kEyepieces);
        EXPECT_TRUE(Places(page).isVisible());
        const QStringList lines = Places(page).text().split('\n');
        ASSERT_EQ(5, lines.size());
        EXPECT_EQ("There are no eyepieces. The first of these lists counts that is there:",
                  lines[0].toStdString());
        EXPECT_EQ(std::filesystem::current_path() / "eyepiece.dat", lines[1].toStdString());
        EXPECT_EQ("/nowhere/user/orreva/eyepiece.dat", lines[2].toStdString());
        EXPECT_EQ("/nowhere/system/orreva/eyepiece.dat", lines[3].toStdString());
        EXPECT_FALSE(UseInstalled(page).isVisible()) << "there is none";
    });
}

TEST_F(EyepiecesPage, AnEmptyListIsExchangedForTheInstalledOne)
{
    folder.Write("eyepiece.dat", "# nothing yet\n");
    std::filesystem::create_directories(folder.Path() / "system/orreva");
    folder.Write("system/orreva/eyepiece.dat", "Kellner 20,20,45\nErfle 32,32,65\n");
    const Environment system("XDG_DATA_DIRS", (folder / "system").c_str());
    MakeMeasuredTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kEyepieces);
        EXPECT_EQ(Lines{}, Entries(page)) << "the user's own list counts";
        EXPECT_TRUE(Places(page).isVisible());
        ASSERT_TRUE(UseInstalled(page).isVisible());
        UseInstalled(page).click();
        EXPECT_EQ((Lines{"Erfle 32", "Kellner 20"}), Entries(page));
        EXPECT_FALSE(Places(page).isVisible());
        EXPECT_FALSE(UseInstalled(page).isVisible());
        ChooseEntry(page, 1011, 1);
        EXPECT_EQ("60.00", Value(page, "Magnification"));
        EXPECT_FALSE(Button(sheet, "apply").isEnabled());
    });
}

TEST_F(EyepiecesPage, AListInTheUsersFolderIsFoundWithoutAnyInTheCurrentOne)
{
    std::filesystem::create_directories(folder.Path() / "user/orreva");
    folder.Write("user/orreva/eyepiece.dat", "Ortho 12,12,45\n");
    const Environment user("XDG_DATA_HOME", (folder / "user").c_str());
    MakeMeasuredTelescope();
    InSheet([](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kEyepieces);
        EXPECT_EQ((Lines{"Ortho 12"}), Entries(page));
        EXPECT_FALSE(Places(page).isVisible());
    });
}

TEST_F(EyepiecesPage, EachOpeningOfTheSheetReadsTheFileAgain)
{
    MakeMeasuredTelescope();
    for (const char* const name : {"First", "Second"}) {
        folder.Write("eyepiece.dat", std::string(name) + ",10,50\n");
        OnPage(kEyepieces, "cancel", [name](CPropertyPage& page) { EXPECT_EQ(Lines{name}, Entries(page)); });
    }
}

TEST_F(EyepiecesPage, MissingFieldsCountAsNoughtAndDivideAsTheyMay)
{
    folder.Write("eyepiece.dat", "Name alone\n,,\n   # not one\n\t\nminus,-10,50\n");
    MakeMeasuredTelescope();
    OnPage(kEyepieces, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ((Lines{"", "minus", "Name alone"}), Entries(page));
        ChooseEntry(page, 1011, 2);
        const Lines expected{"Focal Length | 0.00°", "Apparent Filed of View | 0.00°", "Magnification | inf",
                             "Exit Pupil | 0.00", "Actual Field of View | 0.00°"};
        EXPECT_EQ(expected, Rows(page));
        ChooseEntry(page, 1011, 1);
        EXPECT_EQ("-120.00", Value(page, "Magnification"));
    });
}

TEST_F(EyepiecesPage, OfAMillionLinesTheFirstHundredThousandOpen)
{
    std::string text;
    std::string last;
    for (long i = 0; i < 1000000; ++i) {
        const std::string name = "Eyepiece " + std::to_string(i * 7919 % 1000000);
        last = i < 100000 ? std::max(last, name) : last;
        text += name + "," + std::to_string(i % 50 + 1) + ",50\n";
    }
    folder.Write("eyepiece.dat", text);
    MakeMeasuredTelescope();
    InSheet([this, last](CMyPropertySheet0& sheet) {
        constexpr const char* kNote = "More than 100000 eyepieces: the first are shown";
        CPropertyPage& page = Visit(sheet, kEyepieces);
        QCoreApplication::processEvents();
        ASSERT_EQ(100000, Names(page).count());
        ASSERT_EQ(1u, Rows(page).size());
        EXPECT_EQ(0u, Rows(page)[0].find(kNote)) << Rows(page)[0];
        QTest::keyClick(&Names(page), Qt::Key_End);
        EXPECT_EQ(last, Names(page).currentText().toStdString());
        ASSERT_EQ(6u, Rows(page).size());
        EXPECT_EQ(0u, Rows(page)[5].find(kNote)) << "below the five";
        Names(page).showPopup();
        QCoreApplication::processEvents();
        EXPECT_TRUE(Names(page).view()->isVisible());
        Names(page).hidePopup();
    });
}

TEST_F(EyepiecesPage, ALineOfAMegabyteAndBytesOfAnyKindAreSurvived)
{
    std::string text = std::string(1 << 20, 'x') + ",10,50\n";
    for (int i = 0; i < 256; ++i) {
        text += static_cast<char>(i);
    }
    folder.Write("eyepiece.dat", text + "\nLast,10,50");
    MakeMeasuredTelescope();
    OnPage(kEyepieces, "cancel", [](CPropertyPage& page) {
        const Lines names = Entries(page);
        EXPECT_EQ(1, std::ranges::count(names, "Last"));
        EXPECT_EQ(1, std::ranges::count(names, std::string(1000, 'x'))) << "the first 1000 characters count";
        for (int i = 0; i < Names(page).count(); ++i) {
            ChooseEntry(page, 1011, i);
            EXPECT_EQ(5u, Rows(page).size());
        }
    });
}

} // namespace

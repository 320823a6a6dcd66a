#include "pages/sheet/SheetFixture.h"

namespace {

class BalancePage : public SheetFixture {};
class BalancePageGerman : public GermanSheetFixture {};

using Lines = std::vector<std::string>;

constexpr int kBoxRow = 2;

/// The answer to the message box that opens next, after a look at its text.
auto BoxWith(const char* text, QMessageBox::StandardButton answer = QMessageBox::Ok)
{
    return [text, answer](QMessageBox& box) {
        EXPECT_EQ(QString::fromUtf8(text), box.text());
        EXPECT_EQ("Orreva", box.windowTitle());
        QTest::mouseClick(box.button(answer), Qt::LeftButton);
    };
}

TEST_F(BalancePage, ListsNineComponentsWithTheMirrorOnTop)
{
    MakeMeasuredTelescope();
    OnPage(kBalance, "cancel", [](CPropertyPage& page) {
        const Lines rows = Rows(page);
        ASSERT_EQ(9u, rows.size());
        // W = 2335.017 g, in the middle of a mirror 33.33 mm thick that lies 50 mm before the end
        EXPECT_EQ("Mirror | 2.335 kg | 66.7 mm | 16.7 mm hinter der Spiegeloberfläche", rows[0]);
        EXPECT_EQ("Mirror Cell | 1.168 kg | 26.7 mm | 26.7 mm vor dem Tubusende", rows[1]);
        EXPECT_EQ("Mirror Box | 4.296 kg | 93.3 mm | 93.3 mm vor dem Tubusende", rows[2]);
        EXPECT_EQ("Tube Center Section, Trusses | 1.168 kg | 666.7 mm | 666.7 mm vor dem Tubusende", rows[3]);
        EXPECT_EQ("1.557 kg", Value(page, "Upper Cage"));
        EXPECT_EQ("0.292 kg", Value(page, "Secondary, Secondary Holder"));
        EXPECT_EQ("0.350 kg", Value(page, "Focuser, Okular"));
        EXPECT_EQ("1.000 kg", Value(page, "Finder, Finder Holder"));
        EXPECT_EQ("Miscellaneous | 0.000 kg | 0.0 mm | 0.0 mm vor dem Tubusende", rows[8]);
        EXPECT_EQ("Das Gesammtgewicht des Teleskopes beträgt ca. 12.2 kg.", TextOf(page, 1034));
    });
}

TEST_F(BalancePageGerman, ListsInGerman)
{
    MakeMeasuredTelescope();
    OnPage(kBalance, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ("Spiegel | 2.335 kg | 66.7 mm | 16.7 mm hinter der Spiegeloberfläche", Rows(page)[0]);
        EXPECT_EQ("0.292 kg", Value(page, "Fangspiegel, Fangspiegelhalter, Spinne"));
        EXPECT_EQ("Das Gesammtgewicht des Teleskopes beträgt ca. 12.2 kg.", TextOf(page, 1034));
        EXPECT_TRUE(Text(page, 1035).startsWith("Der Schwerpunkt des Gesammtsystems liegt "));
        EXPECT_TRUE(Text(page, 1035).endsWith(" mm vor dem spiegelseitigen Tubusende"));
    });
}

TEST_F(BalancePage, TheCentreOfGravityIsTheWeighedMean)
{
    MakeMeasuredTelescope();
    for (const BalanceComponent& component : kBalanceComponents) {
        (Record().*component.weight.set)(0);
    }
    OnPage(kBalance, "cancel", [](CPropertyPage& page) {
        EXPECT_TRUE(Text(page, 1035).contains("nan mm")) << "nothing weighs nothing: 0 / 0";
    });
    Record().SetWeightCell(1000);
    Record().SetBalanceCell(100);
    Record().SetWeightMisc(3000);
    Record().SetBalanceMisc(300);
    OnPage(kBalance, "cancel", [](CPropertyPage& page) {
        EXPECT_EQ("The Center of Gravity is located 250.0 mm in Front of the Tube Rear End",
                  TextOf(page, 1035));
        EXPECT_EQ("Das Gesammtgewicht des Teleskopes beträgt ca. 4.0 kg.", TextOf(page, 1034));
    });
}

TEST_F(BalancePage, EditingAsksForARowAndExplainsTheMirror)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kBalance);
        InNextDialog<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(&sheet, box.parentWidget());
            BoxWith("Please select a Component first.")(box);
        });
        QApplication::setActiveWindow(nullptr);
        Click(page, 1006);
        SelectRow(page, 0);
        InNextDialog<QMessageBox>(
            BoxWith("Weight and Center of Gravity of the primary are calculated from the data "
                    "you provided in the Sheets 'Primary' and 'Tube'."));
        Click(page, 1006);
        EXPECT_FALSE(Button(sheet, "apply").isEnabled());
    });
}

TEST_F(BalancePageGerman, EditingAsksForARowAndExplainsTheMirror)
{
    MakeMeasuredTelescope();
    OnPage(kBalance, "cancel", [this](CPropertyPage& page) {
        InNextDialog<QMessageBox>(
            BoxWith("Selektieren Sie bitte zunächst, welche Komponente Sie bearbeiten möchten."));
        Click(page, 1006);
        SelectRow(page, 0);
        InNextDialog<QMessageBox>(
            BoxWith("Das Gewicht und der Schwerpunkt des Spiegels berechnet sich aus den Daten, die Sie beim "
                    "Hauptspiegel und Tubus angegeben haben.\n"
                    "Ändern Sie die Daten bitte im Reiter 'Hauptspiegel' bzw, 'Tubus'."));
        Click(page, 1006);
    });
}

TEST_F(BalancePage, AComponentIsEditedInItsDialog)
{
    MakeMeasuredTelescope();
    OnPage(kBalance, "cancel", [this](CPropertyPage& page) {
        SelectRow(page, kBoxRow);
        InNextDialog<QDialog>([](QDialog& dialog) {
            EXPECT_EQ("Weight and Center of Gravity", dialog.windowTitle());
            EXPECT_EQ("Weight of the component in Gramms", LabelOf(dialog, 1000));
            EXPECT_EQ("Center of Gravity starting from the rear end of the tube", LabelOf(dialog, 1001));
            EXPECT_EQ("4296", TextOf(dialog, 1000));
            EXPECT_EQ("4296", FindControl<QLineEdit>(&dialog, 1000)->selectedText()) << "to type over it";
            EXPECT_EQ("93", TextOf(dialog, 1001));
            Type(dialog, 1000, "1500,25");
            Type(dialog, 1001, "no number");
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        Click(page, 1006);
        EXPECT_EQ("Mirror Box | 1.500 kg | 0.0 mm | 0.0 mm vor dem Tubusende", Rows(page)[kBoxRow]);
    });
    EXPECT_EQ(1500.25, Record().GetWeightBox()) << "in the record at once, in spite of Cancel";
    EXPECT_EQ(0.0, Record().GetBalanceBox());
}

TEST_F(BalancePageGerman, TheDialogIsGermanAndItsCancelChangesNothing)
{
    MakeMeasuredTelescope();
    OnPage(kBalance, "cancel", [this](CPropertyPage& page) {
        SelectRow(page, kBoxRow);
        InNextDialog<QDialog>([](QDialog& dialog) {
            EXPECT_EQ("Gewicht und Schwerpunkt einer Komponente", dialog.windowTitle());
            EXPECT_EQ("Gewicht der Komponente in Gramm.", LabelOf(dialog, 1000));
            EXPECT_EQ("Schwerpunkt ausgehend von spiegelseitigen Tubusende", LabelOf(dialog, 1001));
            const auto buttons = dialog.findChildren<QPushButton*>();
            EXPECT_TRUE(std::ranges::any_of(buttons, [](const QPushButton* button) {
                return button->text().remove('&') == "Abbrechen";
            }));
            Type(dialog, 1000, "1");
            dialog.reject();
        });
        Click(page, 1006);
        EXPECT_EQ("4.296 kg", Value(page, "Spiegelkasten"));
    });
}

TEST_F(BalancePage, ResetsInTheDialogStayAfterItsCancel)
{
    MakeMeasuredTelescope();
    for (std::size_t row = 1; row < kBalanceCount; ++row) {
        const BalanceComponent& component = kBalanceComponents[row];
        SuggestBalance(Record());
        const std::string suggested =
            ShowNumber(Record(), {component.weight.get, component.weight.set, "%0.1f"});
        const std::string balance = ShowNumber(Record(), component.balance);
        (Record().*component.weight.set)(5555);
        (Record().*component.balance.set)(6666);
        OnPage(kBalance, "cancel", [&](CPropertyPage& page) {
            SelectRow(page, static_cast<int>(row));
            InNextDialog<QDialog>([&](QDialog& dialog) {
                EXPECT_EQ("5555", TextOf(dialog, 1000));
                EXPECT_EQ("6666", TextOf(dialog, 1001));
                Click(dialog, 1065);
                EXPECT_EQ(suggested, TextOf(dialog, 1000)) << "with one decimal";
                EXPECT_NE(5555.0, (Record().*component.weight.get)());
                EXPECT_EQ(6666.0, (Record().*component.balance.get)());
                Click(dialog, 1062);
                EXPECT_EQ(balance, TextOf(dialog, 1001));
                dialog.reject();
            });
            const std::string before = Rows(page)[row];
            Click(page, 1006);
            EXPECT_NE(before, Rows(page)[row]) << "the list shows the default";
        });
        EXPECT_NE(5555.0, (Record().*component.weight.get)());
        EXPECT_NE(6666.0, (Record().*component.balance.get)());
    }
}

TEST_F(BalancePage, SuggestionsNeedAYes)
{
    MakeMeasuredTelescope();
    Record().SetWeightCell(1);
    Record().SetBalanceMisc(77);
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kBalance);
        const char* const question = "This overwrites the existing Data.\n\nProceed?";
        InNextDialog<QMessageBox>(BoxWith(question, QMessageBox::No));
        Click(page, 1007);
        EXPECT_EQ("0.001 kg", Value(page, "Mirror Cell"));
        EXPECT_FALSE(Button(sheet, "apply").isEnabled());
        InNextDialog<QMessageBox>(BoxWith(question, QMessageBox::Yes));
        Click(page, 1007);
        EXPECT_EQ("1.168 kg", Value(page, "Mirror Cell")) << "W / 2";
        EXPECT_EQ("4.296 kg", Value(page, "Mirror Box")) << "1.84 W";
        EXPECT_EQ("Miscellaneous | 0.000 kg | 0.0 mm | 0.0 mm vor dem Tubusende", Rows(page)[8]);
    });
    EXPECT_EQ(0.0, Record().GetBalanceMisc()) << "Cancel takes nothing back";
}

TEST_F(BalancePage, ASuggestionIsAStepOfItsOwn)
{
    MakeMeasuredTelescope();
    app->Document().BeginCommand();
    Record().SetWeightCell(1);
    Record().SetBalanceMisc(77);
    app->Document().NoteStep({"Weights", "Gewichte"});
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kBalance);
        InNextDialog<QMessageBox>(
            BoxWith("This overwrites the existing Data.\n\nProceed?", QMessageBox::Yes));
        Click(page, 1007);
    });
    ASSERT_EQ(0.0, Record().GetBalanceMisc());
    const Bilingual* const step = app->Document().Steps().UndoName();
    ASSERT_NE(nullptr, step);
    EXPECT_STREQ("Suggest reasonable Values", step->english);
    app->Document().OnUndo();
    EXPECT_EQ(77.0, Record().GetBalanceMisc());
    EXPECT_EQ(1.0, Record().GetWeightCell());
    EXPECT_STREQ("Weights", app->Document().Steps().UndoName()->english);
}

TEST_F(BalancePageGerman, TheQuestionIsGerman)
{
    MakeMeasuredTelescope();
    OnPage(kBalance, "cancel", [this](CPropertyPage& page) {
        InNextDialog<QMessageBox>(
            BoxWith("Dieser Vorgang überschreibt die vorhandenen Daten dieser Seite.\n\nFortfahren?",
                    QMessageBox::No));
        Click(page, 1007);
    });
}

TEST_F(BalancePage, ComingToTheFrontReadsTheWholeListAgain)
{
    MakeMeasuredTelescope();
    InSheet([this](CMyPropertySheet0& sheet) {
        CPropertyPage& page = Visit(sheet, kBalance);
        Type(Visit(sheet, kPrimary), 1010, "66.66");
        Press(sheet, "apply");
        Record().SetWeightFinder(2000);
        Visit(sheet, kBalance);
        EXPECT_EQ("4.670 kg", Value(page, "Mirror")) << "twice as thick";
        EXPECT_EQ("1.168 kg", Value(page, "Mirror Cell")) << "as it was computed once";
        EXPECT_EQ("2.000 kg", Value(page, "Finder, Finder Holder"));
    });
}

} // namespace

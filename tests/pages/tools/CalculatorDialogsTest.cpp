#include "app/AppFixture.h"
#include "views/PaintCounter.h"
#include "views/WidgetPixels.h"

#include "document/Commands.h"
#include "drawing/PolygonPicture.h"
#include "drawing/SectorPicture.h"
#include "model/tools/Calculator.h"
#include "views/PolygonWidget.h"
#include "views/SectorWidget.h"

#include <QClipboard>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {

namespace id = command_id;

class Calculators : public AppFixture, public testing::WithParamInterface<int> {
protected:
    Calculators() : AppFixture(GetParam()) {}

    static QString In(const char* english, const char* german)
    {
        return QString::fromUtf8(GetParam() == kGerman ? german : english);
    }

    static QString LabelOf(const QDialog& dialog, const char* field)
    {
        for (const QLabel* const label : dialog.findChildren<QLabel*>()) {
            if (label->buddy() != nullptr && label->buddy()->objectName() == field) {
                return label->text();
            }
        }
        return {};
    }

    static QStringList Rows(const QComboBox& list)
    {
        QStringList rows;
        for (int i = 0; i < list.count(); ++i) {
            rows << list.itemText(i);
        }
        return rows;
    }

    /// Chooses a row by the keyboard.
    static void ChooseRow(QComboBox& list, int row)
    {
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Home);
        for (int i = 0; i < row; ++i) {
            QTest::keyClick(&list, Qt::Key_Down);
        }
        ASSERT_EQ(row, list.currentIndex());
    }
};

INSTANTIATE_TEST_SUITE_P(BothLanguages, Calculators, testing::Values(kEnglish, kGerman));

template <typename Widget>
Widget& Child(const QDialog& dialog, const char* name = nullptr)
{
    return *dialog.findChild<Widget*>(QString(name));
}

TEST_P(Calculators, HaveTheirTitlesAndNoButtonsAndNeedNoTelescope)
{
    struct Tool {
        int command;
        int dialog;
        QString title;
    };
    const Tool kTools[] = {
        {id::kCalculator, 141, In("Calculator", "Rechner")},
        {id::kInchCalculator, 136, In("Inch/mm Calculator", "Zoll/mm Rechner")},
        {id::kPolygonCalculator, 140, In("Polygon Calculator", "Mehreck Rechner")},
        {id::kSectorCalculator, 142, In("Circle Segment Calculator", "Kraisausschnitt Rechner")},
    };
    ASSERT_FALSE(app->Document().HasFile());
    for (const Tool& tool : kTools) {
        InDialogOf(tool.command, [&](QDialog& dialog) {
            EXPECT_EQ(tool.dialog, dialog.property(kDialogId).toInt());
            EXPECT_EQ(tool.title, dialog.windowTitle());
            EXPECT_TRUE(dialog.findChildren<QPushButton*>().isEmpty());
        });
    }
    EXPECT_EQ(0, app->Document().main_record.IsModified());
}

// The expression calculator --------------------------------------------------------------------------------

TEST_P(Calculators, ExpressionIsEvaluatedAtEveryChange)
{
    InDialogOf(id::kCalculator, [](QDialog& dialog) {
        auto& input = Child<QPlainTextEdit>(dialog, "input");
        auto& result = Child<QLineEdit>(dialog, "result");
        EXPECT_EQ("", result.text());
        EXPECT_TRUE(result.isReadOnly());
        QTest::keyClicks(&input, "1");
        EXPECT_EQ("1.000000", result.text());
        QTest::keyClicks(&input, "+");
        EXPECT_NE("1.000000", result.text()) << "a message in its place";
        QTest::keyClicks(&input, "2*3");
        EXPECT_EQ("7.000000", result.text());
        QTest::keyClick(&input, Qt::Key_Backspace);
        QTest::keyClick(&input, Qt::Key_Backspace);
        EXPECT_EQ("3.000000", result.text());
        TypeOver(input, "");
        EXPECT_EQ("No input data.", result.text());
    });
}

TEST_P(Calculators, ExpressionResultsAndMessages)
{
    InDialogOf(id::kCalculator, [](QDialog& dialog) {
        constexpr struct {
            const char* input;
            const char* result;
        } kCases[] = {
            {"sqrt(0-1)", "No errors."},
            {"1e308*10", "No errors."},
            {"log(0)", "-inf"},
            {"5!", "Fakultät overflow."},
            {"mem(3)", "0.000000"},
            {"mem(1.5)", "Unknown Error."},
            {"year(date(24.12.2004))", "2004.000000"},
        };
        for (const auto& [input, expected] : kCases) {
            TypeOver(Child<QPlainTextEdit>(dialog, "input"), input);
            EXPECT_EQ(QString::fromUtf8(expected), Child<QLineEdit>(dialog, "result").text()) << input;
        }
        TypeOver(Child<QPlainTextEdit>(dialog, "input"), "1+");
        QTest::keyClick(&Child<QPlainTextEdit>(dialog, "input"), Qt::Key_Return);
        QTest::keyClicks(&Child<QPlainTextEdit>(dialog, "input"), "2");
        QTest::keyClicks(&Child<QLineEdit>(dialog, "result"), "9");
        EXPECT_EQ("3.000000", Child<QLineEdit>(dialog, "result").text());
    });
}

TEST_P(Calculators, ExpressionTakes1023Characters)
{
    InDialogOf(id::kCalculator, [](QDialog& dialog) {
        auto& input = Child<QPlainTextEdit>(dialog, "input");
        QGuiApplication::clipboard()->setText(QString(kLongestExpression - 1, ' ') + "7");
        QTest::keyClick(&input, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ("7.000000", Child<QLineEdit>(dialog, "result").text());
        QTest::keyClicks(&input, "7");
        EXPECT_EQ("Expression of more than 1023 characters.", Child<QLineEdit>(dialog, "result").text());
        QTest::keyClick(&input, Qt::Key_Backspace);
        EXPECT_EQ("7.000000", Child<QLineEdit>(dialog, "result").text());
    });
}

TEST_P(Calculators, ExpressionIsTakenCharacterByCharacter)
{
    InDialogOf(id::kCalculator, [](QDialog& dialog) {
        const auto paste = [&](const QString& text) {
            auto& input = Child<QPlainTextEdit>(dialog, "input");
            TypeOver(input, "");
            QGuiApplication::clipboard()->setText(text);
            QTest::keyClick(&input, Qt::Key_V, Qt::ControlModifier);
            return Child<QLineEdit>(dialog, "result").text();
        };
        EXPECT_EQ("Unknown character [ \u00A0 ].", paste(u"1\u00A0+1"_qs)) << "no blank of the language";
        EXPECT_EQ("-96.000000", paste(u"ascii(\u00A0)"_qs));
        EXPECT_EQ("Unknown character [ ? ].", paste(QString("1") + QChar(0) + "+1"));
        EXPECT_EQ("2.000000", paste(u"1 // one\n+1"_qs));
        EXPECT_EQ("2.000000", paste(u"1 // one\u2028+1"_qs));
    });
}

TEST_P(Calculators, ALongResultIsReadFromItsFirstDigit)
{
    InDialogOf(id::kCalculator, [](QDialog& dialog) {
        TypeOver(Child<QPlainTextEdit>(dialog, "input"), "1e300");
        EXPECT_EQ(301 + 7, Child<QLineEdit>(dialog, "result").text().size());
        EXPECT_EQ(0, Child<QLineEdit>(dialog, "result").cursorPosition());
    });
}

// The inch/mm calculator -----------------------------------------------------------------------------------

TEST_P(Calculators, InchAndMmDoNotFeedOneAnother)
{
    InDialogOf(id::kInchCalculator, [](QDialog& dialog) {
        EXPECT_EQ("mm -> Inch", Child<QGroupBox>(dialog, "mmGroup").title());
        EXPECT_EQ("Inch -> mm", Child<QGroupBox>(dialog, "inchGroup").title());
        auto& mm = Child<QLineEdit>(dialog, "mm");
        auto& mmResult = Child<QLineEdit>(dialog, "mmResult");
        auto& inch = Child<QLineEdit>(dialog, "inch");
        auto& inchResult = Child<QLineEdit>(dialog, "inchResult");
        for (const QLineEdit* const field : {&mm, &mmResult, &inch, &inchResult}) {
            EXPECT_EQ("", field->text());
        }
        TypeOver(inch, "1,5");
        EXPECT_EQ("38.100000", inchResult.text());
        EXPECT_EQ("", mm.text());
        EXPECT_EQ("", mmResult.text());
        TypeOver(mm, "25.4");
        EXPECT_EQ("1.000000", mmResult.text());
        EXPECT_EQ("38.100000", inchResult.text());
        TypeOver(mm, "");
        EXPECT_EQ("0.000000", mmResult.text());
        TypeOver(mm, "much");
        EXPECT_EQ("0.000000", mmResult.text());
        QTest::keyClicks(&mmResult, "1");
        QTest::keyClicks(&inchResult, "1");
        EXPECT_EQ("0.000000", mmResult.text());
        EXPECT_EQ("38.100000", inchResult.text());
    });
}

// The polygon calculator -----------------------------------------------------------------------------------

void ExpectPolygon(CPolygonWidget& widget, const PolygonInput& input)
{
    EXPECT_EQ(input.dDiameter, widget.m_dDiameter);
    EXPECT_EQ(input.dThickness, widget.m_dValue);
    EXPECT_EQ(input.nType, widget.m_nType);
    EXPECT_EQ(Painted(widget, [&](Surface& surface) { PaintPolygon(surface, input, g_nLanguage); }),
              Shown(widget));
}

TEST_P(Calculators, PolygonStartsWithEightSides)
{
    InDialogOf(id::kPolygonCalculator, [](QDialog& dialog) {
        EXPECT_EQ(In("Type", "Typ"), LabelOf(dialog, "type"));
        EXPECT_EQ(In("Inner Diameter", "Innendurchmesser"), LabelOf(dialog, "diameter"));
        EXPECT_EQ(In("Tube Thickness", "Wanddurchmesser"), LabelOf(dialog, "thickness"));
        EXPECT_EQ("225.0", Child<QLineEdit>(dialog, "diameter").text());
        EXPECT_EQ("6.5", Child<QLineEdit>(dialog, "thickness").text());
        const QStringList rows{"Dreieck", "Viereck", "Fünfeck", "Sechseck", "Siebenseck",
                               "Achteck", "Neuneck", "Zehneck", "Elfeck",   "Zwölfeck"};
        EXPECT_EQ(rows, Rows(Child<QComboBox>(dialog, "type")));
        EXPECT_EQ(5, Child<QComboBox>(dialog, "type").currentIndex());
        ExpectPolygon(Child<CPolygonWidget>(dialog), {225, 6.5, 5});
    });
}

TEST_P(Calculators, PolygonFollowsEveryChange)
{
    InDialogOf(id::kPolygonCalculator, [](QDialog& dialog) {
        auto& widget = Child<CPolygonWidget>(dialog);
        PaintCounter repaints(widget);
        QTest::keyClicks(&Child<QLineEdit>(dialog, "diameter"), "1");
        EXPECT_LT(0, repaints.Take());
        ExpectPolygon(widget, {225.01, 6.5, 5});
        TypeOver(Child<QLineEdit>(dialog, "diameter"), "300,5");
        ExpectPolygon(widget, {300.5, 6.5, 5});
        repaints.Take();
        TypeOver(Child<QLineEdit>(dialog, "thickness"), "12");
        EXPECT_LT(0, repaints.Take());
        ExpectPolygon(widget, {300.5, 12, 5});
        repaints.Take();
        ChooseRow(Child<QComboBox>(dialog, "type"), 9);
        EXPECT_LT(0, repaints.Take());
        ExpectPolygon(widget, {300.5, 12, 9});
        TypeOver(Child<QLineEdit>(dialog, "thickness"), "");
        ExpectPolygon(widget, {300.5, 0, 9});
    });
}

TEST_P(Calculators, PolygonEdgesOfTheThickness)
{
    InDialogOf(id::kPolygonCalculator, [](QDialog& dialog) {
        auto& widget = Child<CPolygonWidget>(dialog);
        TypeOver(Child<QLineEdit>(dialog, "thickness"), "112.6");
        ExpectPolygon(widget, {225, 112.6, 5});
        const QImage refusal = Shown(widget);
        TypeOver(Child<QLineEdit>(dialog, "thickness"), "112.5");
        ExpectPolygon(widget, {225, 112.5, 5});
        EXPECT_NE(refusal, Shown(widget)) << "exactly half of the diameter still draws";
        TypeOver(Child<QLineEdit>(dialog, "diameter"), "0");
        TypeOver(Child<QLineEdit>(dialog, "thickness"), "0");
        ExpectPolygon(widget, {0, 0, 5});
    });
}

TEST_P(Calculators, ARepaintOfTheirDialogsCopiesTheValuesToo)
{
    InDialogOf(id::kPolygonCalculator, [](QDialog& dialog) {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
        Child<CPolygonWidget>(dialog).m_dDiameter = 1;
        Child<CPolygonWidget>(dialog).m_nType = 1;
        dialog.repaint();
        ExpectPolygon(Child<CPolygonWidget>(dialog), {225, 6.5, 5});
    });
    InDialogOf(id::kSectorCalculator, [](QDialog& dialog) {
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
        Child<CSectorWidget>(dialog).m_dValue = 1;
        dialog.repaint();
        EXPECT_EQ(90.0, Child<CSectorWidget>(dialog).m_dValue);
    });
}

// The sector calculator ------------------------------------------------------------------------------------

void ExpectSector(CSectorWidget& widget, const SectorInput& input)
{
    EXPECT_EQ(input.dDiameter, widget.m_dDiameter);
    EXPECT_EQ(input.dValue, widget.m_dValue);
    EXPECT_EQ(input.nType, widget.m_nType);
    EXPECT_EQ(Painted(widget, [&](Surface& surface) { PaintSector(surface, input, g_nLanguage); }),
              Shown(widget));
}

TEST_P(Calculators, SectorStartsOnTheRowThatSaysAngleInGermanAlone)
{
    InDialogOf(id::kSectorCalculator, [](QDialog& dialog) {
        EXPECT_EQ(In("Circle Diameter", "Kreisdurchmesser"), LabelOf(dialog, "diameter"));
        EXPECT_EQ("100", Child<QLineEdit>(dialog, "diameter").selectedText()) << "to type over it";
        EXPECT_EQ(In("Type", "Typ"), LabelOf(dialog, "type"));
        EXPECT_EQ(In("Value", "Wert"), LabelOf(dialog, "value"));
        EXPECT_EQ("100", Child<QLineEdit>(dialog, "diameter").text());
        EXPECT_EQ("90", Child<QLineEdit>(dialog, "value").text());
        const QStringList english{"Angle", "Cutting Length", "Sagitta"};
        const QStringList german{"Pfeiltiefe", "Schnittlänge", "Winkel"};
        EXPECT_EQ(GetParam() == kGerman ? german : english, Rows(Child<QComboBox>(dialog, "type")));
        EXPECT_EQ(In("Sagitta", "Winkel"), Child<QComboBox>(dialog, "type").currentText());
        ExpectSector(Child<CSectorWidget>(dialog), {100, 90, 2});
    });
}

TEST_P(Calculators, SectorFollowsEveryChange)
{
    InDialogOf(id::kSectorCalculator, [](QDialog& dialog) {
        auto& widget = Child<CSectorWidget>(dialog);
        PaintCounter repaints(widget);
        TypeOver(Child<QLineEdit>(dialog, "value"), "120,5");
        EXPECT_LT(0, repaints.Take());
        ExpectSector(widget, {100, 120.5, 2});
        repaints.Take();
        TypeOver(Child<QLineEdit>(dialog, "diameter"), "80");
        EXPECT_LT(0, repaints.Take());
        ExpectSector(widget, {80, 120.5, 2});
        repaints.Take();
        ChooseRow(Child<QComboBox>(dialog, "type"), 0);
        EXPECT_LT(0, repaints.Take());
        ExpectSector(widget, {80, 120.5, 0});
        for (const double value : {0.0, 360.0, 361.0, -1.0}) {
            ChooseRow(Child<QComboBox>(dialog, "type"), 2);
            TypeOver(Child<QLineEdit>(dialog, "value"), QString::number(value));
            ExpectSector(widget, {80, value, 2});
        }
        TypeOver(Child<QLineEdit>(dialog, "diameter"), "");
        TypeOver(Child<QLineEdit>(dialog, "value"), "90");
        ExpectSector(widget, {0, 90, 2});
    });
}

class CalculatorsOfAGermanRun : public GermanAppFixture {};

TEST_F(CalculatorsOfAGermanRun, ComeInEnglishAtOnceButForTheTextsOfTheirDrawings)
{
    InDialogOf<QMessageBox>(id::kEnglish, [](QMessageBox&) {});
    InDialogOf(id::kSectorCalculator, [](QDialog& dialog) {
        EXPECT_EQ("Circle Segment Calculator", dialog.windowTitle());
        EXPECT_EQ("Sagitta", Child<QComboBox>(dialog, "type").currentText());
        TypeOver(Child<QLineEdit>(dialog, "diameter"), "0");
        auto& widget = Child<CSectorWidget>(dialog);
        EXPECT_EQ(Painted(widget,
                          [](Surface& surface) {
                              PaintSector(surface, {0, 90, 2}, kGerman);
                          }),
                  Shown(widget));
    });
}

} // namespace

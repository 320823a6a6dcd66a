#include "windows/IlluminationWindow.h"

#include "lib/text/Language.h"
#include "model/optics/IlluminationCurve.h"
#include "support/TemporaryFolder.h"
#include "views/ResultList.h"
#include "windows/ChartView.h"
#include "windows/NextFileDialog.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>

namespace {

/// 250 mm f/6 with a drawtube of 50.8.
constexpr IlluminationStops kStops{250, 1500, 214.25, 46.482, 65, 50.8, 286, 1410.75};

class IlluminationWidgets : public testing::Test {
protected:
    IlluminationWidgets() : window({{"Ploessl", 26, 50}}, nullptr)
    {
        window.ShowDesign(kStops, 12, "Newton");
        window.show();
        curve = window.findChild<CChartView*>("curve");
        reading = window.findChild<QLabel*>("reading");
        axes = window.findChild<QTableWidget*>();
    }
    QString Reading(double field)
    {
        return QString::fromLatin1(IlluminationReading(kStops, field, g_nLanguage).c_str());
    }
    int RowOf(const QString& axis) const
    {
        for (int row = 0; row < axes->rowCount(); ++row) {
            if (axes->item(row, 0)->text() == axis) {
                return row;
            }
        }
        return -1;
    }

    CIlluminationWindow window;
    CChartView* curve;
    QLabel* reading;
    QTableWidget* axes;
};

TEST_F(IlluminationWidgets, ReadsTheCurveOutUnderThePointer)
{
    const QString hint = reading->text();
    QTest::mouseMove(curve, QPoint(curve->width() / 2, curve->height() / 2));
    QTest::qWait(1);
    ASSERT_TRUE(curve->Pointer());
    EXPECT_GT(*curve->Pointer(), 10);
    EXPECT_EQ(Reading(*curve->Pointer()), reading->text());
    QTest::mouseMove(curve, QPoint(1, 1));
    QTest::qWait(1);
    EXPECT_FALSE(curve->Pointer());
    EXPECT_EQ(hint, reading->text());
}

TEST_F(IlluminationWidgets, TheArrowsReadItOutToo)
{
    curve->setFocus();
    QTest::keyClick(curve, Qt::Key_Home);
    EXPECT_EQ("0.0 mm (0.000°): 100.0 % (0.000 mag), whole mirror", reading->text());
    QTest::keyClick(curve, Qt::Key_Right);
    EXPECT_NEAR(50.8 / 200, *curve->Pointer(), 1e-9);
    QTest::keyClick(curve, Qt::Key_Left);
    QTest::keyClick(curve, Qt::Key_Left);
    EXPECT_EQ(0, *curve->Pointer());
    QTest::keyClick(curve, Qt::Key_End);
    EXPECT_EQ(Reading(50.8), reading->text());
    // The reading follows the design.
    IlluminationStops larger = kStops;
    larger.m = 54.356;
    window.ShowDesign(larger, 12, "Newton");
    EXPECT_EQ(QString::fromLatin1(IlluminationReading(larger, *curve->Pointer(), kEnglish).c_str()),
              reading->text());
}

TEST_F(IlluminationWidgets, ListsTheStandardSecondariesAroundThePresentOne)
{
    ASSERT_EQ(9, axes->rowCount());
    EXPECT_EQ("19.05 mm", axes->item(0, 0)->text());
    const int present = RowOf("46.48 mm");
    ASSERT_EQ(4, present);
    EXPECT_TRUE(axes->item(present, 0)->font().bold());
    EXPECT_FALSE(axes->item(present + 1, 0)->font().bold());
    EXPECT_EQ("12.6 mm", axes->item(present, 1)->text()); // (46.482 - 214.25 / 6) / (1 - 214.25 / 1500)
    EXPECT_EQ("18.6 %", axes->item(present, 3)->text());
}

TEST_F(IlluminationWidgets, AClickWantsASecondaryAndTheListStays)
{
    QSignalSpy wanted(&window, &CIlluminationWindow::MinorAxisWanted);
    const int row = RowOf("54.36 mm");
    QTest::mouseClick(axes->viewport(), Qt::LeftButton, {},
                      axes->visualItemRect(axes->item(row, 1)).center());
    ASSERT_EQ(1, wanted.count());
    EXPECT_EQ(54.356, wanted[0][0].toDouble());
    IlluminationStops tried = kStops;
    tried.m = 54.356;
    window.ShowDesign(tried, 12, "Newton");
    EXPECT_EQ(row, RowOf("54.36 mm"));
    EXPECT_EQ(9, axes->rowCount());
    EXPECT_TRUE(axes->item(row, 0)->font().bold());
    EXPECT_FALSE(axes->item(4, 0)->font().bold());
    // One that is not in the list makes it anew.
    tried.m = 60;
    window.ShowDesign(tried, 12, "Newton");
    EXPECT_EQ(4, RowOf("60.00 mm"));
    // The keyboard's way.
    wanted.clear();
    axes->setCurrentCell(5, 0);
    QTest::keyClick(axes, Qt::Key_Return);
    ASSERT_EQ(1, wanted.count());
    EXPECT_EQ(66.04, wanted[0][0].toDouble());
}

TEST_F(IlluminationWidgets, HasThePointsAsATable)
{
    auto* const points = window.findChild<CResultList*>();
    ASSERT_EQ(41, points->RowCount());
    EXPECT_EQ("0.00 mm", points->Cell(0, 0));
    EXPECT_EQ("25.40 mm", points->Cell(40, 0));
}

TEST_F(IlluminationWidgets, ATableAndACurveSayWhatTheyShow)
{
    for (const auto* const view : window.findChildren<QAbstractItemView*>()) {
        EXPECT_TRUE(qobject_cast<const QHeaderView*>(view) != nullptr || !view->accessibleName().isEmpty())
            << view->metaObject()->className();
    }
    for (const auto* const chart : window.findChildren<CChartView*>()) {
        EXPECT_FALSE(chart->accessibleName().isEmpty()) << chart->objectName().toStdString();
    }
}

TEST_F(IlluminationWidgets, ShowsThatThereIsNone)
{
    IlluminationStops none = kStops;
    none.m = 250;
    window.ShowDesign(none, 12, "Newton");
    EXPECT_EQ(0, axes->rowCount());
    EXPECT_EQ(0, window.findChild<CResultList*>()->RowCount());
    window.ShowNothing();
    EXPECT_EQ("No telescope is loaded.", reading->text());
    for (const QPushButton* const button : window.findChildren<QPushButton*>()) {
        EXPECT_FALSE(button->isEnabled());
    }
}

TEST_F(IlluminationWidgets, TakesTheGroundOfTheDesktop)
{
    window.resize(900, 700);
    const QRgb light = curve->grab().toImage().pixel(2, 2);
    EXPECT_EQ(qRgb(255, 255, 255), light);
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    window.setPalette(dark);
    EXPECT_EQ(qRgb(kDarkChart.background.red, kDarkChart.background.green, kDarkChart.background.blue),
              curve->grab().toImage().pixel(2, 2));
}

TEST_F(IlluminationWidgets, ThePictureHasTheFormOfItsEnding)
{
    const QSignalSpy made(&window, &CIlluminationWindow::FileMade);
    const auto save = [&](const QString& name, const QString& form = {}) {
        AnswerNextFileDialog(window, name, form);
        for (QPushButton* const button : window.findChildren<QPushButton*>()) {
            if (button->text() == "Save picture...") {
                button->click();
            }
        }
    };
    save("light.svg");
    save("light.v2", "PDF (*.pdf)");
    save("light");
    save("");
    ASSERT_EQ(3, made.count());
    const QByteArray svg = made[0][1].toByteArray();
    EXPECT_TRUE(svg.contains("<svg") && svg.contains("<title>Newton</title>"));
    EXPECT_TRUE(svg.contains("Ploessl")); // the eyepiece's field stop is marked here, too
    EXPECT_TRUE(made[1][0].toString().endsWith("/light.v2.pdf"));
    EXPECT_TRUE(made[1][1].toByteArray().startsWith("%PDF"));
    EXPECT_TRUE(made[2][0].toString().endsWith("/light.png"));
    const QImage png = QImage::fromData(made[2][1].toByteArray(), "PNG");
    EXPECT_EQ(QSize(1200, 750), png.size());
    EXPECT_EQ(QColor(Qt::white), png.pixelColor(2, 2)); // for paper, whatever the desktop's ground
}

TEST_F(IlluminationWidgets, PrintsIntoAFileWhole)
{
    const QSignalSpy made(&window, &CIlluminationWindow::FileMade);
    const TemporaryFolder folder;
    const QString target = QString::fromStdString(folder / "light.pdf");
    QTimer::singleShot(0, &window, [&target] {
        auto* const dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(nullptr, dialog);
        dialog->printer()->setOutputFileName(target);
        dialog->done(QDialog::Accepted);
    });
    for (QPushButton* const button : window.findChildren<QPushButton*>()) {
        if (button->text() == "Print...") {
            button->click();
        }
    }
    ASSERT_EQ(1, made.count());
    EXPECT_EQ(target, made[0][0].toString());
    const QByteArray pdf = made[0][1].toByteArray();
    EXPECT_TRUE(pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF"));
    EXPECT_TRUE(pdf.contains("/Count 1"));
    EXPECT_EQ(0, folder.Count()) << "it is written by whom it is given to";
}

TEST_F(IlluminationWidgets, SpeaksGerman)
{
    g_nLanguage = kGerman;
    CIlluminationWindow german({}, nullptr);
    g_nLanguage = kEnglish;
    EXPECT_EQ("Ausleuchtung", german.windowTitle());
}

} // namespace

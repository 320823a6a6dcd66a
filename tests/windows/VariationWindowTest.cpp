#include "windows/VariationWindow.h"

#include "support/SampleScopes.h"
#include "support/TemporaryFolder.h"
#include "windows/ChartView.h"
#include "windows/NextFileDialog.h"
#include "windows/VariationRun.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace {

class VariationWindow : public testing::Test {
protected:
    VariationWindow()
    {
        MakeRoundScope(record);
        window.show();
        window.ShowPresent(record);
    }

    QPushButton* Button(const QString& text) const
    {
        for (QPushButton* const button : window.findChildren<QPushButton*>()) {
            if (button->text() == text) {
                return button;
            }
        }
        return nullptr;
    }
    /// Until the curves are drawn.
    bool Wait() const
    {
        return QTest::qWaitFor([this] { return !run->IsRunning(); });
    }
    QLineEdit* Edit(int i) const { return window.findChildren<QLineEdit*>().at(i); }

    TemporaryFolder folder;
    COrrevaData record;
    CVariationWindow window{nullptr};
    CVariationRun* run = window.findChild<CVariationRun*>();
    QLabel* told = window.findChild<QLabel*>("told");
};

TEST_F(VariationWindow, ProposesHalfToTwiceThePresentNumber)
{
    EXPECT_EQ("30", Edit(0)->text());
    EXPECT_EQ("120", Edit(1)->text());
    window.findChildren<QComboBox*>().at(0)->setCurrentText("Focal length");
    EXPECT_EQ("500", Edit(0)->text());
    EXPECT_EQ("2000", Edit(1)->text());
}

TEST_F(VariationWindow, EveryFieldHasItsLabel)
{
    const auto fields = window.findChildren<QLineEdit*>();
    int named = 0;
    for (const QLabel* const label : window.findChildren<QLabel*>()) {
        named += label->buddy() != nullptr && !label->text().isEmpty() ? 1 : 0;
    }
    // parameter, from, to, points and four values
    EXPECT_EQ(8, named);
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(std::ranges::any_of(window.findChildren<QLabel*>(),
                                        [&](const QLabel* label) { return label->buddy() == fields[i]; }));
    }
}

TEST_F(VariationWindow, AClickTellsTheValuesAndWantsATrial)
{
    ASSERT_TRUE(Wait());
    QSignalSpy wanted(&window, &CVariationWindow::TrialWanted);
    auto* const chart = window.findChild<CChartView*>();
    emit chart->Clicked(80.1); // every 0.45 mm from 30 on: 79.95 or 80.4
    ASSERT_EQ(1, wanted.count());
    EXPECT_NEAR(79.95, wanted[0][1].toDouble(), 1e-9);
    // full field (1000 m - 40000) / 800, and m / 200
    EXPECT_EQ("Minor axis of the secondary: 79.95; Fully lit field: 49.94; Linear obstruction: 39.98",
              told->text());
}

TEST_F(VariationWindow, OnlyALeftClickInThePlotIsAClick)
{
    ASSERT_TRUE(Wait());
    auto* const chart = window.findChild<CChartView*>();
    QSignalSpy clicked(chart, &CChartView::Clicked);
    const QPoint inside = chart->rect().center();
    QTest::mouseClick(chart, Qt::RightButton, {}, inside);
    QTest::mouseClick(chart, Qt::LeftButton, {}, QPoint(1, chart->height() - 1));
    EXPECT_EQ(0, clicked.count());
    QTest::mouseClick(chart, Qt::LeftButton, {}, inside);
    ASSERT_EQ(1, clicked.count());
    EXPECT_GT(clicked[0][0].toDouble(), 30);
    EXPECT_LT(clicked[0][0].toDouble(), 120);
}

TEST_F(VariationWindow, ARangeThatIsNoneIsTold)
{
    ASSERT_TRUE(Wait());
    for (const char* const text : {"", "x", "120", "1e999"}) {
        Edit(0)->setFocus();
        Edit(0)->selectAll();
        *text != 0 ? QTest::keyClicks(Edit(0), text) : QTest::keyClick(Edit(0), Qt::Key_Delete);
        EXPECT_EQ("The range needs two different numbers.", told->text()) << text;
        EXPECT_FALSE(run->IsRunning()) << text;
    }
}

TEST_F(VariationWindow, ALongRunCanBeStopped)
{
    window.findChildren<QComboBox*>().at(1)->setCurrentText("Field with 75 % of the light at its edge");
    window.findChild<QSpinBox*>()->setValue(100'000);
    QPushButton* const stop = Button("Stop");
    ASSERT_TRUE(run->IsRunning());
    EXPECT_TRUE(stop->isEnabled());
    stop->click();
    EXPECT_FALSE(run->IsRunning());
    EXPECT_FALSE(stop->isEnabled());
    EXPECT_EQ("Stopped.", told->text());
}

TEST_F(VariationWindow, TheTableIsMadeAsCsv)
{
    Edit(0)->setText("40");
    Edit(1)->setText("60");
    window.findChild<QSpinBox*>()->setValue(3);
    ASSERT_TRUE(Wait());
    const QSignalSpy made(&window, &CVariationWindow::FileMade);
    for (const char* const name : {"curve.csv", "curve", "Curve.CSV"}) {
        AnswerNextFileDialog(window, name);
        Button("Table as CSV...")->click();
    }
    ASSERT_EQ(3, made.count());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ("secondary/diameter,full_field,linear_obstruction\n40,0,20\n50,12.5,25\n60,25,30\n",
                  made[i][1].toByteArray());
    }
    EXPECT_TRUE(made[0][0].toString().endsWith("/curve.csv"));
    EXPECT_TRUE(made[1][0].toString().endsWith("/curve.csv"));
    EXPECT_TRUE(made[2][0].toString().endsWith("/Curve.CSV"));
    AnswerNextFileDialog(window, "");
    Button("Table as CSV...")->click();
    EXPECT_EQ(3, made.count());
}

TEST_F(VariationWindow, ThePictureHasTheFormOfItsEnding)
{
    ASSERT_TRUE(Wait());
    const QSignalSpy made(&window, &CVariationWindow::FileMade);
    AnswerNextFileDialog(window, "curve.svg");
    Button("Picture...")->click();
    AnswerNextFileDialog(window, "curve", "PDF (*.pdf)");
    Button("Picture...")->click();
    AnswerNextFileDialog(window, "curve");
    Button("Picture...")->click();
    ASSERT_EQ(3, made.count());
    EXPECT_TRUE(made[0][1].toByteArray().contains("<svg"));
    EXPECT_TRUE(made[0][1].toByteArray().contains("Fully lit field"));
    EXPECT_TRUE(made[1][0].toString().endsWith("/curve.pdf"));
    EXPECT_TRUE(made[1][1].toByteArray().startsWith("%PDF"));
    EXPECT_TRUE(made[2][0].toString().endsWith("/curve.png"));
    EXPECT_EQ(QSize(1600, 1000), QImage::fromData(made[2][1].toByteArray(), "PNG").size());
}

TEST_F(VariationWindow, AnyDesignHasItsCurves)
{
    for (const double odd : kOddNumbers) {
        MakeRoundScope(record);
        record.SetFocalLength(odd);
        record.SetMirrorDiameter(-odd);
        window.ShowPresent(record);
        EXPECT_TRUE(Wait());
        EXPECT_FALSE(window.grab().isNull());
    }
}

} // namespace

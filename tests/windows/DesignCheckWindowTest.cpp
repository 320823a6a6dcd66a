#include "windows/DesignCheckWindow.h"

#include "support/SampleScopes.h"
#include "windows/DesignCheckField.h"
#include "windows/SeverityMark.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>

namespace {

class DesignCheckWidgets : public testing::Test {
protected:
    DesignCheckWidgets() { MakeRoundScope(record); }

    std::vector<DesignFinding> Findings() { return CheckDesign(DesignCopy(record).State(), g_nLanguage); }

    COrrevaData record;
};

TEST_F(DesignCheckWidgets, TheWindowShowsSeveritySentenceAndRemedy)
{
    CDesignCheckWindow window(nullptr);
    auto* const table = window.findChild<QTableWidget*>();
    auto* const message = window.findChild<QLabel*>();
    window.ShowFindings(Findings());
    EXPECT_EQ(0, table->rowCount());
    EXPECT_EQ("The check finds nothing to complain of.", message->text());
    EXPECT_TRUE(table->verticalHeader()->isHidden()) << "findings have no numbers";

    record.SetDistanceFront(20);
    window.ShowFindings(Findings());
    ASSERT_EQ(1, table->rowCount());
    EXPECT_EQ("Warning", table->item(0, 0)->text());
    EXPECT_FALSE(table->item(0, 0)->icon().isNull());
    EXPECT_EQ(
        "The tube ends 20.00 mm in front of the focuser's centre, within the focuser's radius of 25.00 mm.",
        table->item(0, 1)->text());
    EXPECT_TRUE(table->item(0, 2)->text().startsWith("On the page Tube, enter a larger number"));

    window.ShowNothing();
    EXPECT_EQ(0, table->rowCount());
    EXPECT_EQ("No telescope is loaded.", message->text());
}

TEST_F(DesignCheckWidgets, ADoubleClickWantsTheField)
{
    CDesignCheckWindow window(nullptr);
    record.SetDistanceFront(20);
    window.ShowFindings(Findings());
    window.show();
    auto* const table = window.findChild<QTableWidget*>();
    QSignalSpy wanted(&window, &CDesignCheckWindow::FieldWanted);
    const QPoint place = table->visualItemRect(table->item(0, 1)).center();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(0, wanted.count());
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place);
    ASSERT_EQ(1, wanted.count());
    EXPECT_EQ("tube/distance_front", wanted[0][0].toString());
}

TEST_F(DesignCheckWidgets, TheFieldCountsErrorsAndWarnings)
{
    CDesignCheckField field;
    EXPECT_TRUE(field.isHidden());
    field.ShowFindings(Findings());
    EXPECT_FALSE(field.isHidden());
    EXPECT_EQ("", field.text());
    EXPECT_EQ("Nothing to complain of", field.toolTip());

    record.SetSecondaryDiameter(70); // 35 %: a note
    field.ShowFindings(Findings());
    EXPECT_EQ("", field.text());

    record.SetDistanceFront(20);
    field.ShowFindings(Findings());
    EXPECT_EQ("1 warning", field.text());
    EXPECT_TRUE(field.toolTip().startsWith("The tube ends 20.00 mm")) << field.toolTip().toStdString();
    EXPECT_EQ("Design check: 1 warning", field.accessibleName());

    record.SetWanted100PercentFow(1000);
    record.SetInsideDiameterHat(190);
    field.ShowFindings(Findings());
    EXPECT_EQ("1 error, 4 warnings", field.text());
    field.ShowNothing();
    EXPECT_TRUE(field.isHidden());
}

TEST(SeverityMark, DiffersByShapeAndNotByColourAlone)
{
    const auto shape = [](std::optional<Severity> severity) {
        return SeverityMark(severity).pixmap(32, 32).toImage().convertToFormat(QImage::Format_Grayscale8);
    };
    const QImage marks[] = {shape(Severity::kError), shape(Severity::kWarning), shape(Severity::kNote),
                            shape({})};
    for (int i = 0; i < 4; ++i) {
        for (int k = 0; k < i; ++k) {
            EXPECT_NE(marks[i], marks[k]) << i << " " << k;
        }
    }
}

/// The cross of an error: white at its middle and at the same distance along both diagonals.
TEST(SeverityMark, AnErrorIsCrossed)
{
    const QImage mark = SeverityMark(Severity::kError).pixmap(64, 64).toImage();
    for (const int x : {24, 32, 40}) {
        for (const int y : {x, 64 - x}) {
            EXPECT_EQ(QColor(Qt::white), mark.pixelColor(x, y)) << x << ' ' << y;
        }
    }
    EXPECT_NE(QColor(Qt::white), mark.pixelColor(32, 20));
}

} // namespace

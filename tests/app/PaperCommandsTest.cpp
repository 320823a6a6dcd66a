// The two commands that put a design on paper, through the menu and their dialogs.

#include "app/AppFixture.h"

#include "app/ExportFile.h"
#include "document/Commands.h"
#include "views/PaperPreview.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

#include <filesystem>

namespace {

namespace id = command_id;

class PaperCommands : public AppFixture {
protected:
    QString Status() const { return app->Frame().findChild<QLabel*>("message")->text(); }

    /// Answers the next file dialog with a name.
    void AnswerFile(const QString& proposed, const std::string& name)
    {
        InNextDialog<QFileDialog>([this, proposed, name](QFileDialog& dialog) {
            EXPECT_EQ(proposed, dialog.findChild<QLineEdit*>("fileNameEdit")->text());
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(folder / name));
            dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        });
    }
};
class PaperCommandsGerman : public GermanAppFixture {};

/// Pages of a PDF file.
qsizetype PagesOf(const std::string& pdf) { return QByteArray::fromStdString(pdf).count("/Type /Page\n"); }

TEST_F(PaperCommands, TheReportIsWrittenAndTheStatusBarSaysSo)
{
    MakeTelescope();
    app->Document().main_record.SetTitle("Garden: 250/1500");
    AnswerFile("Garden- 250-1500.pdf", "report");
    Choose(id::kReportPdf);
    const std::string pdf = folder.Read("report.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF-"));
    EXPECT_GE(PagesOf(pdf), 2);
    EXPECT_LE(PagesOf(pdf), 8);
    EXPECT_LE(pdf.size(), 200000u);
    EXPECT_TRUE(Status().startsWith("Written: ")) << Status().toStdString();
    EXPECT_TRUE(Status().endsWith("report.pdf"));
    EXPECT_EQ(1, folder.Count()) << "nothing else is left";
}

TEST_F(PaperCommands, ThePictureOfAWindowTakesTheWordOfTheCommandBefore)
{
    MakeTelescope();
    Choose(id::kSave);
    ASSERT_TRUE(Status().endsWith("noname.orreva.xml")) << Status().toStdString();
    ExportFile(app->Document(), QString::fromStdString(folder / "curve.svg"), "<svg/>");
    EXPECT_EQ("<svg/>", folder.Read("curve.svg"));
    EXPECT_TRUE(Status().endsWith("curve.svg"));
    EXPECT_FALSE(Status().contains("noname"));
    // So does one that fails.
    Choose(id::kSave);
    ExportFile(app->Document(), QString::fromStdString(folder / "missing/curve.svg"), "<svg/>");
    EXPECT_TRUE(Status().contains("missing/curve.svg")) << Status().toStdString();
    EXPECT_FALSE(Status().contains("noname")) << Status().toStdString();
}

TEST_F(PaperCommands, AReportThatCannotBeWrittenIsTold)
{
    MakeTelescope();
    app->Document().main_record.SetTitle("A report that cannot be written");
    InNextDialog<QFileDialog>([this](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(folder / "report"));
        dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
        std::filesystem::create_directory(folder /
                                          "report.pdf"); // something stands there now that is no file
        InNextDialog<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ("Error writing...", box.text());
            box.accept();
        });
    });
    Choose(id::kReportPdf);
    EXPECT_TRUE(Status().startsWith("Cannot write ")) << Status().toStdString();
}

TEST_F(PaperCommands, TheSheetsAreChosenSeenAndSaved)
{
    MakeTelescope();
    app->Document().main_record.SetMirrorDiameter(200);
    app->Document().main_record.SetFocalLength(1200);
    app->Document().main_record.SetTitle("Six");
    InDialogOf<QDialog>(id::kWorkshopSheets, [this](QDialog& dialog) {
        auto& sheets = *dialog.findChild<QListWidget*>("sheets");
        ASSERT_EQ(5, sheets.count());
        EXPECT_EQ("Couder mask", sheets.item(0)->text());
        EXPECT_EQ(3, dialog.findChild<QSpinBox*>("zones")->value());
        EXPECT_EQ("5", dialog.findChild<QLineEdit*>("centre")->text());
        auto& save = *dialog.findChild<QPushButton*>("save");
        AnswerFile("Six - Workshop sheets.pdf", "all");
        QTest::mouseClick(&save, Qt::LeftButton);
        EXPECT_EQ(6, PagesOf(folder.Read("all.pdf"))) << "the mask takes two";

        for (const int i : {0, 1, 3, 4}) {
            sheets.item(i)->setCheckState(Qt::Unchecked);
        }
        AnswerFile("Six - Workshop sheets.pdf", "one");
        QTest::mouseClick(&save, Qt::LeftButton);
        EXPECT_EQ(1, PagesOf(folder.Read("one.pdf")));

        auto& paper = *dialog.findChild<QComboBox*>("paper");
        EXPECT_EQ("A4", paper.currentText());
        sheets.item(0)->setCheckState(Qt::Checked);
        paper.setCurrentText("A3");
        AnswerFile("Six - Workshop sheets.pdf", "large");
        QTest::mouseClick(&save, Qt::LeftButton);
        const std::string large = folder.Read("large.pdf");
        EXPECT_EQ(2, PagesOf(large)) << "now the mask takes one";
        EXPECT_NE(std::string::npos, large.find("/MediaBox [0 0 842.000000 1191.000000]"));

        sheets.item(0)->setCheckState(Qt::Unchecked);
        sheets.item(2)->setCheckState(Qt::Unchecked);
        EXPECT_FALSE(save.isEnabled()) << "there is nothing to save";
        EXPECT_FALSE(dialog.findChild<QPushButton*>("print")->isEnabled());
    });
    EXPECT_TRUE(Status().endsWith("large.pdf"));
}

TEST_F(PaperCommands, ThePreviewShowsThePagesAndGrows)
{
    MakeTelescope();
    InDialogOf<QDialog>(id::kWorkshopSheets, [](QDialog& dialog) {
        auto& preview = *dialog.findChild<CPaperPreview*>("preview");
        QCoreApplication::processEvents();
        const QImage image = preview.grab().toImage();
        int ink = 0;
        int white = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                ink += qGray(image.pixel(x, y)) < 140 ? 1 : 0; // the ground is lighter
                white += image.pixel(x, y) == qRgb(255, 255, 255) ? 1 : 0;
            }
        }
        EXPECT_GT(ink, 50);
        EXPECT_GT(white, 10 * ink);
        const int before = preview.height();
        dialog.findChild<QSlider*>("size")->setValue(60);
        QCoreApplication::processEvents();
        EXPECT_GT(preview.height(), before);
    });
}

TEST_F(PaperCommands, ASheetThatCannotBeMadeIsToldAndTheOthersStay)
{
    MakeTelescope();
    app->Document().main_record.SetMirrorDiameter(5000);
    InDialogOf<QDialog>(id::kWorkshopSheets, [](QDialog& dialog) {
        auto& faults = *dialog.findChild<QLabel*>("faults");
        EXPECT_TRUE(faults.isVisible());
        EXPECT_TRUE(faults.text().contains("Couder mask: more than 100 pages would be needed"));
        EXPECT_TRUE(dialog.findChild<QPushButton*>("save")->isEnabled());
    });
}

TEST_F(PaperCommands, LookingAtSheetsChangesNothing)
{
    MakeTelescope();
    app->Document().main_record.SetModified(0);
    const double before = app->Document().main_record.star_precision;
    InDialogOf<QDialog>(id::kWorkshopSheets, [](QDialog&) {});
    EXPECT_EQ(0, app->Document().main_record.IsModified());
    EXPECT_EQ(before, app->Document().main_record.star_precision);
}

TEST_F(PaperCommands, HelpOnTheDialogIsItsPage)
{
    MakeTelescope();
    InDialogOf<QDialog>(id::kWorkshopSheets, [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_F1); });
    ASSERT_EQ(1u, helpPages.size());
    EXPECT_TRUE(helpPages[0].toString().contains("Papier"));
}

TEST_F(PaperCommandsGerman, TheDialogIsGerman)
{
    MakeTelescope();
    InDialogOf<QDialog>(id::kWorkshopSheets, [](QDialog& dialog) {
        EXPECT_EQ(QString::fromUtf8("Werkstattblätter"), dialog.windowTitle());
        EXPECT_EQ("Couder-Maske", dialog.findChild<QListWidget*>("sheets")->item(0)->text());
        EXPECT_EQ(QString::fromUtf8("Schließen"), dialog.findChild<QPushButton*>("finish")->text());
    });
    app->Document().main_record.SetTitle("x");
    InDialogOf<QFileDialog>(id::kReportPdf, [](QFileDialog& dialog) {
        EXPECT_EQ("Bericht als PDF", dialog.windowTitle());
        EXPECT_EQ("PDF-Dateien (*.pdf)", dialog.findChild<QComboBox*>("fileTypeCombo")->itemText(0));
    });
}

} // namespace

// What the desktop shows of windows and messages: captions, icons, whole lines, where the keyboard starts.

#include "app/AppFixture.h"

#include "document/Commands.h"
#include "document/OrrevaDoc.h"
#include "views/ProgramIcon.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QWindow>

namespace {

class Windows : public AppFixture {};
class WindowsGerman : public GermanAppFixture {};

/// How many lines the text of a box takes up.
int LinesOf(const QMessageBox& box)
{
    QCoreApplication::processEvents(); // the box is laid out
    const auto* const label = box.findChild<QLabel*>("qt_msgbox_label");
    const QFontMetrics metrics = label->fontMetrics();
    const QRect text = metrics.boundingRect(label->contentsRect(), Qt::TextWordWrap, label->text());
    return text.height() / metrics.height();
}

TEST_F(Windows, TheMessageAboutTheMarksKeepsItsTwoLines)
{
    MakeTelescope();
    InDialogOf<QMessageBox>(command_id::kCentreMarks, [](QMessageBox& box) {
        EXPECT_EQ(1, box.text().count('\n'));
        EXPECT_EQ(2, LinesOf(box));
    });
}

TEST_F(Windows, AMessageOfALongLineIsBrokenAndStaysOnTheScreen)
{
    InNextDialog<QMessageBox>([](QMessageBox& box) {
        EXPECT_LE(5, LinesOf(box));
        EXPECT_LE(box.width(), box.screen()->availableSize().width());
        box.accept();
    });
    std::string text;
    for (int i = 0; i < 100; ++i) {
        text += "word ";
    }
    app->Document().Host().ShowMessage(text.c_str());
}

TEST(WindowsBefore, AMessageBeforeTheMainWindowHasTheIcon)
{
    QApplication::setWindowIcon({});
    COrrevaApp app;
    bool seen = false;
    QTimer::singleShot(0, [&seen] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(nullptr, box);
        seen = true;
        EXPECT_EQ(nullptr, box->parentWidget());
        EXPECT_EQ(ProgramIcon("orreva").pixmap(32).toImage(),
                  box->windowHandle()->icon().pixmap(32).toImage());
        box->accept();
    });
    EXPECT_FALSE(app.InitInstance({"no such file.orreva"}));
    EXPECT_TRUE(seen);
}

TEST_F(Windows, TheMainWindowHasTheIcon)
{
    EXPECT_EQ(ProgramIcon("orreva").pixmap(32).toImage(), app->Frame().windowIcon().pixmap(32).toImage());
}

TEST_F(Windows, AnyNameOfAFileStandsInTheCaption)
{
    const QWindow& window = *app->Frame().windowHandle();
    for (const QString name : {"plain.orreva.xml", "a [*].orreva.xml", "[*][*]", "[*]", "[[*]*]"}) {
        app->Frame().SetDocumentTitle(name);
        EXPECT_EQ(name + " - Orreva", window.title());
    }
    app->Frame().SetDocumentTitle({});
    EXPECT_EQ("Orreva", window.title());
}

TEST_F(WindowsGerman, TheKeyboardOfTheAboutBoxStartsOnOk)
{
    InDialogOf<QDialog>(command_id::kAbout, [](QDialog& dialog) {
        QCoreApplication::processEvents();
        const auto* const ok = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        EXPECT_EQ(ok, QApplication::focusWidget());
        EXPECT_TRUE(ok->isDefault());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_TRUE(helpPages.empty());
}

QString CaptionOf(QFileDialog& dialog)
{
    QCoreApplication::processEvents();
    return dialog.windowHandle()->title();
}

TEST_F(Windows, ExportsAreTitledByWhatTheyDo)
{
    MakeTelescope();
    InDialogOf<QFileDialog>(command_id::kExportOslo,
                            [](QFileDialog& dialog) { EXPECT_EQ("Export OSLO Format", CaptionOf(dialog)); });
    InDialogOf<QFileDialog>(command_id::kExportFta, [](QFileDialog& dialog) {
        EXPECT_EQ("Export Foucault Test Analysis 2.0B Data", CaptionOf(dialog));
    });
    InDialogOf<QFileDialog>(command_id::kSaveAs, [](QFileDialog& dialog) {
        EXPECT_EQ("Save As", CaptionOf(dialog)) << "the toolkit's";
    });
}

TEST_F(WindowsGerman, ExportsAreTitledByWhatTheyDo)
{
    MakeTelescope();
    InDialogOf<QFileDialog>(command_id::kExportOslo, [](QFileDialog& dialog) {
        EXPECT_EQ("OSLO Daten exportieren", CaptionOf(dialog));
    });
    InDialogOf<QFileDialog>(command_id::kExportFta, [](QFileDialog& dialog) {
        EXPECT_EQ("Foucault Test Analysis 2.0B Daten exportieren", CaptionOf(dialog));
    });
}

} // namespace

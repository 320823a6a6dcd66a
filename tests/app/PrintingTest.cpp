#include "app/AppFixture.h"

#include "document/Commands.h"
#include "views/LeftView.h"
#include "views/OrrevaView.h"
#include "views/RecordingPrinter.h"

#include <QCursor>
#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPushButton>
#include <QTimer>

namespace {

class Printing : public AppFixture {
protected:
    explicit Printing(int language = kEnglish) : AppFixture(language)
    {
        MakeTelescope();
        app->Document().main_record.SetTitle("Newton 200/1200");
    }

    void ActivateSection() const
    {
        QTest::mouseClick(&app->Frame().RightView(), Qt::LeftButton, {}, QPoint(50, 50));
    }

    struct Seen {
        QString title;
        QString document;
        QString file;
        QPageLayout::Orientation paper;
        bool operator==(const Seen&) const = default;
    };
    static Seen Look(QPrintDialog& dialog)
    {
        return {dialog.windowTitle(), dialog.printer()->docName(),
                QFileInfo(dialog.findChild<QLineEdit*>("filename")->text()).fileName(),
                dialog.printer()->pageLayout().orientation()};
    }
    Seen PrintDialog()
    {
        Seen seen{};
        InNextDialog<QPrintDialog>([&seen](QPrintDialog& dialog) {
            seen = Look(dialog);
            dialog.reject();
        });
        Choose(command_id::kPrint);
        return seen;
    }
    /// The first text on the page that the cross-section makes.
    QString Status() const
    {
        RecordingPrinter printer({800, 600});
        app->Frame().RightView().OnPrint(printer);
        return printer.Texts().empty() ? QString() : printer.Texts().front().text;
    }
};
class PrintingGerman : public Printing {
protected:
    PrintingGerman() : Printing(kGerman) {}
};

TEST_F(Printing, TellsWhichPaneItPrints)
{
    const QString summary = "Newton 200/1200 - design summary";
    EXPECT_EQ((Seen{summary, summary, "Newton 200-1200 - design summary.pdf", QPageLayout::Portrait}),
              PrintDialog());
    ActivateSection();
    const QString section = "Newton 200/1200 - cross-section";
    EXPECT_EQ((Seen{section, section, "Newton 200-1200 - cross-section.pdf", QPageLayout::Landscape}),
              PrintDialog());
}

TEST_F(PrintingGerman, TellsItInGerman)
{
    EXPECT_EQ(QString::fromUtf16(u"Newton 200/1200 - Übersicht"), PrintDialog().title);
    ActivateSection();
    EXPECT_EQ("Newton 200/1200 - Querschnitt", PrintDialog().title);
}

TEST_F(Printing, ThePreviewsOwnDialogTellsItToo)
{
    ActivateSection();
    Seen seen{};
    InNextDialog<QPrintPreviewDialog>([&](QPrintPreviewDialog& preview) {
        EXPECT_EQ("Newton 200/1200 - cross-section", preview.windowTitle());
        InNextDialog<QPrintDialog>([&seen](QPrintDialog& dialog) {
            seen = Look(dialog);
            dialog.reject();
        });
        for (QAction* const action : preview.findChildren<QAction*>()) {
            if (action->text() == "Print" || action->text() == "&Print") {
                action->trigger();
                break;
            }
        }
        preview.reject();
    });
    Choose(command_id::kPrintPreview);
    EXPECT_EQ((Seen{"Newton 200/1200 - cross-section", "Newton 200/1200 - cross-section",
                    "Newton 200-1200 - cross-section.pdf", QPageLayout::Landscape}),
              seen);
}

TEST_F(Printing, ProposesNoPaperOnceTheUserHasChosen)
{
    InNextDialog<QPrintDialog>([](QPrintDialog& dialog) {
        dialog.printer()->setPageOrientation(QPageLayout::Landscape); // as the dialog's properties do
        dialog.reject();
    });
    Choose(command_id::kPrint);
    EXPECT_EQ(QPageLayout::Landscape, PrintDialog().paper) << "the summary";
}

TEST_F(Printing, HoldsTheRaysAsTheyStood)
{
    Choose(command_id::kRaysParallel);
    COrrevaView& view = app->Frame().RightView();
    QCursor::setPos(view.mapToGlobal(QPoint(300, 150)));
    view.grab();
    const QString before = Status();
    ASSERT_TRUE(before.startsWith("Angle: ")) << before.toStdString();
    view.HoldForPrint(true);
    QCursor::setPos(view.mapToGlobal(QPoint(300, 260)));
    view.grab();
    EXPECT_EQ(before, Status()) << "a preview paints its page while the mouse moves on";
    view.HoldForPrint(false);
    EXPECT_NE(before, Status());
}

TEST_F(Printing, PrintsTheRaysOfTheScreen)
{
    Choose(command_id::kRaysParallel);
    COrrevaView& view = app->Frame().RightView();
    QCursor::setPos(view.mapToGlobal(QPoint(300, 150)));
    view.grab();
    const QString shown = Status();
    QCursor::setPos(view.mapToGlobal(QPoint(300, 190))); // to the dialog, and nothing is painted
    EXPECT_EQ(shown, Status());
}

} // namespace

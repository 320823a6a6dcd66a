#include "app/AppFixture.h"

#include "document/Commands.h"
#include "pages/sheet/PropertySheet.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace {

constexpr int kDialogs[] = {
    command_id::kArtificialStar,   command_id::kFieldSimulation, command_id::kRaytracingSettings,
    command_id::kCalculator,       command_id::kInchCalculator,  command_id::kPolygonCalculator,
    command_id::kSectorCalculator, command_id::kAbout,
};
constexpr int kSheets[] = {command_id::kProperties, command_id::kTubeProperties, command_id::kFoucaultTest,
                           command_id::kMatchingRonchi};

/// The whole program with letters twice as large as usual.
class LargeFonts : public AppFixture {
protected:
    explicit LargeFonts(int language = kEnglish) : AppFixture(language)
    {
        QFont large = m_usual;
        large.setPointSizeF(2 * m_usual.pointSizeF());
        QApplication::setFont(large);
        MakeTelescope();
    }
    ~LargeFonts() override { QApplication::setFont(m_usual); }

    void ExpectNothingIsClipped();

private:
    const QFont m_usual = QApplication::font();
};
class LargeFontsGerman : public LargeFonts {
protected:
    LargeFontsGerman() : LargeFonts(kGerman) {}
};

/// Whether a widget of one of the kinds that hold a text has less than the text needs.
bool IsClipped(const QWidget& widget)
{
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr) {
        return widget.height() < widget.minimumSizeHint().height();
    }
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && label->wordWrap()) {
        return label->height() < label->heightForWidth(label->width());
    }
    if (const auto* const arrow = qobject_cast<const QToolButton*>(&widget);
        arrow != nullptr && arrow->arrowType() != Qt::NoArrow) {
        return false; // of the tabs, as the toolkit makes them
    }
    const bool holdsText = label != nullptr || qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
                           qobject_cast<const QComboBox*>(&widget) != nullptr;
    const QSize least = widget.minimumSizeHint();
    return holdsText && (widget.width() < least.width() || widget.height() < least.height());
}

/// A layout that has asked for another one is laid out in the next round.
void Settle()
{
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::processEvents();
    }
}

int Examine(const QWidget& window, int id)
{
    Settle();
    int examined = 0;
    for (const QWidget* const widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible()) {
            ++examined;
            EXPECT_FALSE(IsClipped(*widget))
                << id << ' ' << widget->metaObject()->className() << ' ' << widget->objectName().toStdString()
                << ": " << widget->width() << 'x' << widget->height() << " for "
                << widget->minimumSizeHint().width() << 'x' << widget->minimumSizeHint().height();
        }
    }
    return examined;
}

void LargeFonts::ExpectNothingIsClipped()
{
    int examined = 0;
    for (const int id : kDialogs) {
        InDialogOf<QDialog>(id, [id, &examined](QDialog& dialog) { examined += Examine(dialog, id); });
    }
    for (const int id : kSheets) {
        InNextDialog<CPropertySheet>([id, &examined](CPropertySheet& sheet) {
            for (int page = 0; page < sheet.PageCount(); ++page) {
                sheet.SetActivePage(page);
                examined += Examine(sheet, 100 * id + page);
            }
            sheet.reject();
        });
        Choose(id);
    }
    EXPECT_LT(400, examined);
}

TEST_F(LargeFonts, ClipNothing) { ExpectNothingIsClipped(); }
TEST_F(LargeFontsGerman, ClipNothing) { ExpectNothingIsClipped(); }

} // namespace

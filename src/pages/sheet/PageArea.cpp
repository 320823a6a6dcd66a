#include "pages/sheet/PageArea.h"

#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>

namespace {

/// A page that has to be narrow scrolls before its fields cut what stands in them.
void KeepNumbersWhole(QLineEdit& edit)
{
    constexpr int kEdges = 12; // pixels, on both sides together
    const int least = edit.fontMetrics().horizontalAdvance("0000.00") + kEdges;
    if (edit.minimumWidth() == 0 && edit.maximumWidth() > least) {
        edit.setMinimumWidth(least);
    }
}

} // namespace

QSize RoomOnScreen(const QWidget& window)
{
    constexpr QSize kUsualFrame(10, 40);
    const QSize frame = window.frameGeometry().size() - window.size();
    return window.screen()->availableSize() - (frame.isNull() ? kUsualFrame : frame);
}

CPageArea::CPageArea(QWidget* page, QSize room) : m_room(room)
{
    setWidget(page);
    setWidgetResizable(true);
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus); // the fields scroll themselves into sight
    // The sheet shows through.
    page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    page->installEventFilter(this);
    for (QLineEdit* const edit : page->findChildren<QLineEdit*>()) {
        KeepNumbersWhole(*edit);
    }
}

QSize CPageArea::sizeHint() const { return widget()->sizeHint().expandedTo(widget()->minimumSize()); }

QSize CPageArea::minimumSizeHint() const
{
    const QSize least = widget()->minimumSizeHint().expandedTo(widget()->minimumSize());
    QSize shown = least.boundedTo(m_room);
    // A bar takes its place from the other direction.
    if (shown.height() < least.height()) {
        shown.rwidth() = qMin(shown.width() + verticalScrollBar()->sizeHint().width(), m_room.width());
    }
    return shown;
}

bool CPageArea::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        updateGeometry();
    }
    return QScrollArea::eventFilter(watched, event);
}

void ScrollOnSmallScreens(QDialog& dialog, QWidget& picture)
{
    const QSize around = dialog.minimumSizeHint() - picture.minimumSize();
    QWidget place; // the layout lets go of a widget that moves elsewhere
    delete dialog.layout()->replaceWidget(&picture, &place);
    delete dialog.layout()->replaceWidget(&place, new CPageArea(&picture, RoomOnScreen(dialog) - around));
}

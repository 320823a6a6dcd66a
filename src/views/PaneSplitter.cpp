#include "views/PaneSplitter.h"

#include <QPainter>
#include <QSplitterHandle>

#include <algorithm>

namespace {

constexpr int kFrame = 2; ///< pixels
/// A handle that leaves something to take hold of beside the frame.
constexpr int kHandle = 3 * kFrame;

class Handle : public QSplitterHandle {
public:
    explicit Handle(CPaneSplitter& owner) : QSplitterHandle(owner.orientation(), &owner), m_owner(owner) {}

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QSplitterHandle::paintEvent(event);
        m_owner.PaintFrame(*this);
    }

private:
    CPaneSplitter& m_owner;
};

} // namespace

CPaneSplitter::CPaneSplitter(int leftWidth, int leastRight, QWidget* parent)
    : QSplitter(Qt::Horizontal, parent), m_leftWidth(leftWidth), m_leastRight(leastRight)
{
    setContentsMargins(kFrame, kFrame, kFrame, kFrame);
    setHandleWidth(kHandle);
    setChildrenCollapsible(false);
    connect(this, &QSplitter::splitterMoved, this, &CPaneSplitter::KeepShares);
}

QSplitterHandle* CPaneSplitter::createHandle() { return new Handle(*this); }

void CPaneSplitter::ShowActive(const QWidget* pane)
{
    if (pane == m_active) {
        return;
    }
    m_active = pane;
    // The frame alone: the panes would read the record for nothing.
    update(rect());
    for (int i = 0; i < count(); ++i) {
        handle(i)->update();
    }
}

void CPaneSplitter::PaintFrame(QWidget& on) const
{
    if (m_active == nullptr) {
        return;
    }
    const QRect pane = m_active->geometry();
    const QRegion frame = QRegion(pane.adjusted(-kFrame, -kFrame, kFrame, kFrame)) - QRegion(pane);
    QPainter painter(&on);
    const QPoint origin = &on == this ? QPoint(0, 0) : on.pos();
    for (const QRect& side : frame) {
        painter.fillRect(side.translated(-origin), palette().color(QPalette::Highlight));
    }
}

void CPaneSplitter::paintEvent(QPaintEvent* event)
{
    QSplitter::paintEvent(event);
    PaintFrame(*this);
}

void CPaneSplitter::resizeEvent(QResizeEvent* event)
{
    QSplitter::resizeEvent(event);
    Share();
}

void CPaneSplitter::Share()
{
    const QList<int> shares = sizes();
    if (shares.size() == 2) {
        const int both = shares[0] + shares[1];
        const int left = std::clamp(both - m_leastRight, 1, std::max(m_leftWidth, 1));
        setSizes({left, both - left});
    }
}

/// What the user has pulled the panes to is kept from then on.
void CPaneSplitter::KeepShares()
{
    const QList<int> shares = sizes();
    if (shares.size() == 2) {
        m_leftWidth = shares[0];
        m_leastRight = std::min(m_leastRight, shares[1]);
    }
}

#include "views/OrrevaView.h"

#include "document/Commands.h"
#include "drawing/SectionPicture.h"
#include "drawing/SectionSentences.h"
#include "lib/text/Log.h"
#include "views/PaneReading.h"

#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>

namespace {

constexpr Bilingual kSectionPaneTitle{"cross-section", "Querschnitt"};

Pixel At(const QPoint& point) { return {point.x(), point.y()}; }

} // namespace

COrrevaView::COrrevaView(COrrevaDoc& doc, QWidget* parent) : CPane(doc, kSectionPaneTitle, parent)
{
    PaintInScreenPixels();
    setMouseTracking(true);
}

bool COrrevaView::OnCommand(std::int32_t id) { return id == command_id::kShowWithoutOffset; }

void COrrevaView::OnDraw(Surface& surface, SectionZoom& view, Point pointer, double pixelScale)
{
    g_pCurrentDocument = &m_document;
    PaintSection(surface, view, *m_document.active_record, m_document, pointer, g_nLanguage, pixelScale);
}

bool COrrevaView::ShowsRays() const
{
    return m_document.HasFile() && (m_document.ray_parallel != 0 || m_document.ray_from_focal_plane != 0 ||
                                    m_document.ray_from_mouse != 0);
}

void COrrevaView::Paint(Surface& surface)
{
    if (ShowsRays()) {
        // The pointer is read at each drawing; neither zoom nor scroll is taken off it.
        m_shownPointer = PlaceInSection(m_zoom, {width(), height()}, *m_document.active_record, m_document,
                                        At(mapFromGlobal(QCursor::pos())));
    }
    OnDraw(surface, m_zoom, m_shownPointer, PixelScale());
}

void COrrevaView::PaintPage(Surface& surface)
{
    SectionZoom onPaper = m_zoom; // the paper's size is none of the screen's business
    OnDraw(surface, onPaper, m_heldPointer.value_or(m_shownPointer), 1);
}

std::vector<PaneLine> COrrevaView::Read()
{
    std::vector<PaneLine> lines;
    for (const std::string& sentence :
         SectionSentences(*m_document.active_record, m_document, m_shownPointer, m_zoom.zoom, g_nLanguage)) {
        lines.push_back({sentence, {}});
    }
    return lines;
}

void COrrevaView::mouseMoveEvent(QMouseEvent*)
{
    if (ShowsRays()) {
        update();
    }
}

bool COrrevaView::ZoomByKey(int key)
{
    const Pixel size{width(), height()};
    const Pixel step{width() / 10, height() / 10};
    switch (key) {
    case Qt::Key_Plus:
        return m_zoom.StepIn(size);
    case Qt::Key_Minus:
        return m_zoom.StepOut(size);
    case Qt::Key_Left:
        return m_zoom.Move({-step.x, 0}, size);
    case Qt::Key_Right:
        return m_zoom.Move({step.x, 0}, size);
    case Qt::Key_Up:
        return m_zoom.Move({0, -step.y}, size);
    case Qt::Key_Down:
        return m_zoom.Move({0, step.y}, size);
    default:
        return false;
    }
}

void COrrevaView::keyPressEvent(QKeyEvent* event)
{
    if (ZoomByKey(event->key())) {
        update();
        AnnouncePane(*this);
    } else {
        CPane::keyPressEvent(event);
    }
}

void COrrevaView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        LogText("lbutton");
    } else if (event->button() == Qt::RightButton) {
        m_zoom.RightClick();
        update();
    }
}

void COrrevaView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        if (m_zoom.DoubleClick(At(event->position().toPoint()))) {
            update();
        }
    } else {
        mousePressEvent(event); // a quick second right click is one more
    }
}

#include "moc_OrrevaView.cpp"

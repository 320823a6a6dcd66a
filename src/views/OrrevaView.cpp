#include "views/OrrevaView.h"

#include "document/Commands.h"
#include "drawing/SectionPicture.h"
#include "lib/text/Language.h"
#include "lib/text/Log.h"

#include <QCursor>
#include <QMouseEvent>

namespace {

Pixel At(const QPoint& point) { return {point.x(), point.y()}; }

} // namespace

COrrevaView::COrrevaView(COrrevaDoc& doc, QWidget* parent) : CPane(doc, parent)
{
    setObjectName("orrevaView");
    setMouseTracking(true);
}

bool COrrevaView::OnCommand(std::int32_t id) { return id == command_id::kShowWithoutOffset; }

void COrrevaView::OnDraw(Surface& surface, SectionZoom& view)
{
    g_pCurrentDocument = &m_document;
    // The pointer is read at each drawing; neither zoom nor scroll is taken off it.
    const Pixel pointer = At(mapFromGlobal(QCursor::pos()));
    PaintSection(surface, view, *m_document.active_record, m_document, pointer, g_nLanguage);
}

void COrrevaView::Paint(Surface& surface) { OnDraw(surface, m_zoom); }

void COrrevaView::PaintPage(Surface& surface)
{
    SectionZoom onPaper = m_zoom; // the paper's size is none of the screen's business
    OnDraw(surface, onPaper);
}

void COrrevaView::mouseMoveEvent(QMouseEvent*)
{
    const bool rays = m_document.ray_parallel != 0 || m_document.ray_from_focal_plane != 0 ||
                      m_document.ray_from_mouse != 0;
    if (m_document.HasFile() && rays) {
        update();
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

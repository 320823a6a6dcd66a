#include "views/PolygonWidget.h"

#include "drawing/PolygonPicture.h"
#include "lib/text/Language.h"
#include "painting/PainterSurface.h"

#include <QPainter>

CPolygonWidget::CPolygonWidget(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void CPolygonWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PainterSurface surface(painter, width(), height());
    PaintPolygon(surface, {m_dDiameter, m_dValue, m_nType}, g_nLanguage);
}

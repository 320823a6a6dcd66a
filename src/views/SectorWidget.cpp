#include "views/SectorWidget.h"

#include "drawing/SectorPicture.h"
#include "lib/text/Language.h"
#include "painting/PainterSurface.h"

#include <QPainter>

CSectorWidget::CSectorWidget(QWidget* parent) : QWidget(parent) { setAttribute(Qt::WA_OpaquePaintEvent); }

void CSectorWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PainterSurface surface(painter, width(), height());
    PaintSector(surface, {m_dDiameter, m_dValue, m_nType}, g_nLanguage);
}

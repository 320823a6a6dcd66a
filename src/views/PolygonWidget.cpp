#include "views/PolygonWidget.h"

#include "drawing/PolygonPicture.h"
#include "lib/text/Language.h"

void CPolygonWidget::Paint(Surface& surface)
{
    PaintPolygon(surface, {m_dDiameter, m_dValue, m_nType}, g_nLanguage);
}

#include "moc_PolygonWidget.cpp"

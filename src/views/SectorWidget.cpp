#include "views/SectorWidget.h"

#include "drawing/SectorPicture.h"
#include "lib/text/Language.h"

void CSectorWidget::Paint(Surface& surface)
{
    PaintSector(surface, {m_dDiameter, m_dValue, m_nType}, g_nLanguage);
}

#include "moc_SectorWidget.cpp"

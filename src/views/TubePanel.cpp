#include "views/TubePanel.h"

#include "document/OrrevaDoc.h"
#include "drawing/TubePanelPicture.h"
#include "lib/text/Language.h"

void CTubePanel::PaintPanel(Surface& surface, Colour background, Colour text)
{
    PaintTubePanel(surface, *m_document.active_record, g_nLanguage, background, text);
}

#include "moc_TubePanel.cpp"

#include "views/MirrorPanel.h"

#include "document/OrrevaDoc.h"
#include "drawing/MirrorPanelPicture.h"

void CMirrorPanel::PaintPanel(Surface& surface, Colour background, Colour text)
{
    PaintMirrorPanel(surface, *m_document.active_record, background, text);
}

#include "moc_MirrorPanel.cpp"

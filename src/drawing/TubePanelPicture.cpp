#include "drawing/TubePanelPicture.h"

#include "drawing/SidePanelPicture.h"

void PaintTubePanel(Surface& surface, COrrevaData& record, int language, Colour background, Colour text)
{
    PaintPanelBackground(surface, background);
    PaintSidePanelRows(surface, TubePanelRows(record, language), text);
}

#include "drawing/TubePanelPicture.h"

#include "drawing/PanelRowsPicture.h"

void PaintTubePanel(Surface& surface, COrrevaData& record, int language, Colour background, Colour text)
{
    PaintPanelBackground(surface, background);
    PaintPanelRows(surface, TubePanelRows(record, language), text);
}

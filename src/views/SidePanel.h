#pragma once

#include "drawing/Surface.h"
#include "views/PictureWidget.h"

class COrrevaDoc;

/// A painted panel beside the pages of a sheet, its child window 4096. It has no data of its own: it reads
/// the document's active record whenever it is painted, and has the sheet's own colours.
class CSidePanel : public CPictureWidget {
    Q_OBJECT

public:
    CSidePanel(COrrevaDoc& document, QWidget* parent);

protected:
    void Paint(Surface& surface) final;
    virtual void PaintPanel(Surface& surface, Colour background, Colour text) = 0;

    COrrevaDoc& m_document;
};

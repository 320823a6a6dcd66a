#pragma once

#include "drawing/Surface.h"

#include <QWidget>

class COrrevaDoc;

/// A painted panel beside the pages of a sheet, its child window 4096. It has no data of its own: it reads
/// the document's active record whenever it is painted, and has the sheet's own colours.
class CSidePanel : public QWidget {
    Q_OBJECT

public:
    CSidePanel(COrrevaDoc& document, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    virtual void Paint(Surface& surface, Colour background, Colour text) = 0;

    COrrevaDoc& m_document;
};

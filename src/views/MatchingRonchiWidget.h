#pragma once

#include "views/PictureWidget.h"

class COrrevaDoc;

/// The nine patterns of the matching Ronchi test. The dots are thrown anew, from the time, at every repaint;
/// grating (lines/mm) and conic constant are the record's from when the widget was made, the mirror is read
/// at every repaint.
class CMatchingRonchiWidget : public CPictureWidget {
    Q_OBJECT

public:
    CMatchingRonchiWidget(COrrevaDoc& document, QWidget* parent);

protected:
    void Paint(Surface& surface) override;

private:
    COrrevaDoc& m_document;
    double m_grating;
    double m_constant;
};

#pragma once

#include "model/record/OrrevaData.h"
#include "views/PictureWidget.h"

/// A small cross-section of a telescope that is in no document, without rays.
class CSectionThumbnail : public CPictureWidget {
    Q_OBJECT

public:
    explicit CSectionThumbnail(QWidget* parent = nullptr) : CPictureWidget(parent) { PaintInScreenPixels(); }

    /// Shows another telescope; null for none.
    void SetTelescope(const COrrevaData* record);

protected:
    void Paint(Surface& surface) override;

private:
    COrrevaData m_telescope;
};

#pragma once

#include "model/record/OrrevaData.h"

#include <QWidget>

/// A small cross-section of a telescope that is in no document, without rays.
class CSectionThumbnail : public QWidget {
    Q_OBJECT

public:
    explicit CSectionThumbnail(QWidget* parent = nullptr);

    /// Shows another telescope; null for none.
    void SetTelescope(const COrrevaData* record);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    COrrevaData m_telescope;
};

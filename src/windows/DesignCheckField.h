#pragma once

#include "model/analysis/DesignCheck.h"

#include <QToolButton>

/// The status bar's field of the design check: the mark of the worst finding, the count of errors and
/// warnings, and the first of them as its tooltip. Empty while no telescope is loaded.
class CDesignCheckField : public QToolButton {
    Q_OBJECT

public:
    explicit CDesignCheckField(QWidget* parent = nullptr);

    void ShowFindings(const std::vector<DesignFinding>& findings);
    void ShowNothing();
};

#pragma once

#include "model/analysis/TubeDesign.h"
#include "pages/tube/PropertyPageTube.h"

#include <memory>

class QLineEdit;
class QToolButton;

namespace Ui {
class PropertyPageTube1;
}

/// The first page of the tube design: the measures that both designs share, the wanted field in degrees and
/// mm, each following the other, and the choice of the design.
class CPropertyPageTube1 : public CPropertyPageTube {
    Q_OBJECT

public:
    CPropertyPageTube1(COrrevaDoc& document, QWidget* parent);
    ~CPropertyPageTube1() override;

signals:
    /// A radio button of the design was clicked, also the one that was selected already.
    void DesignClicked();

private:
    void ShowMeasures();
    void ShowDegrees();
    void ConnectWantedField();
    void ConnectDesign();
    void ConnectReset(const QToolButton* button, QLineEdit* edit, const NumberField& field);
    /// The step that every change goes through.
    void Update();

    std::unique_ptr<Ui::PropertyPageTube1> m_ui;
};

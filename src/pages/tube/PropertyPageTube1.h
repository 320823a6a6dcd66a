#pragma once

#include "model/analysis/TubeDesign.h"
#include "pages/tube/PropertyPageTube.h"

#include <memory>

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
    void BindWantedField();
    void ConnectDesign();
    /// The step that every change goes through.
    void Update();

    std::unique_ptr<Ui::PropertyPageTube1> m_ui;
};

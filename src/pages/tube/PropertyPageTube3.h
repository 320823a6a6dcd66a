#pragma once

#include "model/analysis/TubeDesign.h"
#include "pages/tube/PropertyPageTube.h"

#include <memory>

namespace Ui {
class PropertyPageTube3;
}

/// The second page of the tube design for a truss tube: mirror box, trusses and upper cage, and the gap that
/// box and cage leave between them.
class CPropertyPageTube3 : public CPropertyPageTube {
    Q_OBJECT

public:
    CPropertyPageTube3(COrrevaDoc& document, QWidget* parent);
    ~CPropertyPageTube3() override;

    /// The gap follows what the first page changed meanwhile.
    void OnSetActive() override { ShowGap(); }

private:
    void ShowTruss();
    void ShowGap();
    void Bind(QLineEdit* edit, QAbstractButton* reset, const NumberField& field);
    /// The step that every change of a number goes through.
    void Update3();

    std::unique_ptr<Ui::PropertyPageTube3> m_ui;
};

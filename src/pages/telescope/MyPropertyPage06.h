#pragma once

#include "model/analysis/Tube.h"
#include "pages/sheet/WantedFieldPage.h"

#include <memory>

namespace Ui {
class MyPropertyPage06;
}

/// The page Tube: the measures of a solid tube and the lengths that follow. When it comes to the front it
/// reads the wanted field again, which the page Secondary may have changed.
class CMyPropertyPage06 : public CWantedFieldPage {
    Q_OBJECT

public:
    CMyPropertyPage06(COrrevaDoc& document, QWidget* parent);
    ~CMyPropertyPage06() override;

    void Store() override;
    void OnApply() override;

protected:
    void Refresh() override;

private:
    TubeTexts Texts() const;

    std::unique_ptr<Ui::MyPropertyPage06> m_ui;
};

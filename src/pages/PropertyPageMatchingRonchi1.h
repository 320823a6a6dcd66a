#pragma once

#include "model/NumberField.h"
#include "pages/PropertyPage.h"

#include <memory>

class COrrevaDoc;
class QLineEdit;
class QToolButton;

namespace Ui {
class PropertyPageMatchingRonchi1;
}

/// "Setup": the grating and the conic constant to be matched.
class CPropertyPageMatchingRonchi1 : public CPropertyPage {
    Q_OBJECT

public:
    CPropertyPageMatchingRonchi1(COrrevaDoc& document, QWidget* parent);
    ~CPropertyPageMatchingRonchi1() override;

    void Store() override;

protected:
    void Recalculate() override;

private:
    void Connect(QLineEdit* edit, const QToolButton* reset, const NumberField& field);

    COrrevaDoc& document;
    std::unique_ptr<Ui::PropertyPageMatchingRonchi1> ui;
};

#pragma once

#include "model/rows/NumberField.h"
#include "pages/sheet/Fields.h"
#include "pages/sheet/PropertyPage.h"

class COrrevaDoc;

/// A page of the telescope sheet. It reads the active record once, when it is built, and computes from its
/// controls' texts from then on; a page's own class says what it reads again when it comes to the front.
class CTelescopePage : public CPropertyPage {
    Q_OBJECT

public:
    /// `wizardButtons`, a set of WizardButton, is posted whenever the page comes to the front.
    CTelescopePage(COrrevaDoc& document, unsigned wizardButtons, QWidget* parent);

    void OnSetActive() override { emit WizardButtons(m_wizardButtons); }

protected:
    COrrevaData& Record() const;
    void Recalculate() override;

    /// Rebuilds from the texts what the page computes.
    virtual void Refresh() {}
    /// The page's data changed, other than by typing: it is modified and refreshes.
    void Changed();

    /// Help on the form's own number, for the two pictures of its strip. To be called once the form is set
    /// up.
    void BindHelpStrip();
    /// Typing into one of the edits is a change of the page's data.
    void BindData(std::initializer_list<QLineEdit*> edits);
    /// The button shows the text that `reset` makes, which is a change.
    void BindReset(QAbstractButton* button, QLineEdit* edit, std::function<std::string()> reset);
    /// The button puts the record's field back to its default, at once.
    void BindReset(QAbstractButton* button, QLineEdit* edit, const NumberField& field);

    COrrevaDoc& m_document;

private:
    const unsigned m_wizardButtons;
};

#pragma once

#include <QWidget>

/// What a page tells the sheet that holds it.
enum WizardButton : unsigned { kWizardBack = 1, kWizardNext = 2, kWizardFinish = 4 };

/// One page of a property sheet. Its window is built at its first activation: a page that the user never
/// visits neither reads nor writes the record.
///
/// A page keeps its inputs as the texts of its controls, computes from those texts, and writes to the record
/// on Next, Back, Finish and Apply alone. A change that counts as data marks it modified. A page's own class
/// says where it departs from that.
class CPropertyPage : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// The page came to the front; it posts its wizard buttons, in a tabbed sheet too.
    virtual void OnSetActive() {}

    /// Takes the texts over into the record. Apply also recalculates; see Apply.
    virtual void Store() {}

    // What the sheet's buttons do; by default each stores, and Apply recalculates after that.
    virtual void OnApply();
    virtual void OnWizardNext() { Store(); }
    virtual void OnWizardBack() { Store(); }
    virtual void OnWizardFinish() { Store(); }

signals:
    /// The page was modified: Apply is enabled.
    void Modified();
    /// Buttons for the wizard, a set of WizardButton.
    void WizardButtons(unsigned buttons);

protected:
    /// The document's Recalculate, which ends every Apply; nothing for a page that stores nothing there.
    virtual void Recalculate() {}

    /// The Info and help pictures at the page's edge: controls of these numbers open help on the contexts.
    void BindHelp(int infoControl, int helpControl, long helpContext);
};

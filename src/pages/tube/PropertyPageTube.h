#pragma once

#include "model/rows/NumberField.h"
#include "pages/sheet/Fields.h"
#include "pages/sheet/PropertyPage.h"

class COrrevaDoc;

/// A page of the tube design. Every keystroke goes into the record and shows everywhere at once, so that
/// nothing is left to Apply.
class CPropertyPageTube : public CPropertyPage {
    Q_OBJECT

public:
    CPropertyPageTube(COrrevaDoc& document, QWidget* parent);

signals:
    /// The record changed. The views know already; the preview is the sheet's.
    void RecordChanged();

protected:
    COrrevaData& Record();
    /// The two pictures at the page's edge.
    void BindTubeHelp();
    /// What every change ends in: the page is marked modified, views and preview are refreshed.
    void ShowChange();
    /// The button puts the record's measure back to its default, at once.
    void BindReset(QAbstractButton* button, QLineEdit* edit, const NumberField& field);

    COrrevaDoc& m_document;
};

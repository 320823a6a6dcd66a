#include "pages/PropertyPageMatchingRonchi1.h"

#include "document/OrrevaDoc.h"
#include "model/RonchiTolerance.h"
#include "views/QtText.h"

#include "ui_PropertyPageMatchingRonchi1.h"

CPropertyPageMatchingRonchi1::CPropertyPageMatchingRonchi1(COrrevaDoc& doc, QWidget* parent)
    : CPropertyPage(parent), document(doc), ui(std::make_unique<Ui::PropertyPageMatchingRonchi1>())
{
    ui->setupUi(this);
    Connect(ui->grating, ui->gratingReset, kRonchiGrating);
    Connect(ui->constant, ui->constantReset, kRonchiConstant);
}

CPropertyPageMatchingRonchi1::~CPropertyPageMatchingRonchi1() = default;

void CPropertyPageMatchingRonchi1::Connect(QLineEdit* edit, const QToolButton* reset,
                                           const NumberField& field)
{
    edit->setText(ToQString(ShowNumber(*document.active_record, field)));
    connect(edit, &QLineEdit::textEdited, this, &CPropertyPageMatchingRonchi1::Modified);
    connect(reset, &QToolButton::clicked, this, [this, edit, field] {
        edit->setText(ToQString(ResetNumber(*document.active_record, field)));
        emit Modified();
    });
}

void CPropertyPageMatchingRonchi1::Store()
{
    StoreNumber(*document.active_record, kRonchiGrating, FromQString(ui->grating->text()));
    StoreNumber(*document.active_record, kRonchiConstant, FromQString(ui->constant->text()));
}

void CPropertyPageMatchingRonchi1::Recalculate() { document.Recalculate(); }

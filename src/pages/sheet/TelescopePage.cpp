#include "pages/sheet/TelescopePage.h"

#include "document/OrrevaDoc.h"
#include "pages/sheet/Controls.h"
#include "pages/sheet/HelpStrip.h"
#include "painting/QtText.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QSignalBlocker>

#include <utility>

CTelescopePage::CTelescopePage(COrrevaDoc& doc, unsigned buttons, QWidget* parent)
    : CPropertyPage(parent), m_document(doc), m_wizardButtons(buttons)
{}

COrrevaData& CTelescopePage::Record() const { return *m_document.active_record; }

void CTelescopePage::Recalculate() { m_document.Recalculate(); }

void CTelescopePage::Changed()
{
    emit Modified();
    Refresh();
}

void CTelescopePage::BindHelpStrip()
{
    BindHelp(CHelpStrip::kInfoControl, CHelpStrip::kHelpControl, property(kDialogId).toInt());
}

void CTelescopePage::BindData(std::initializer_list<QLineEdit*> edits)
{
    for (QLineEdit* const edit : edits) {
        connect(edit, &QLineEdit::textChanged, this, &CTelescopePage::Changed);
    }
}

void CTelescopePage::BindReset(QAbstractButton* button, QLineEdit* edit, std::function<std::string()> reset)
{
    connect(button, &QAbstractButton::clicked, this, [this, edit, reset = std::move(reset)] {
        ShowText(edit, reset());
        Changed();
    });
}

void CTelescopePage::BindReset(QAbstractButton* button, QLineEdit* edit, const NumberField& field)
{
    BindReset(button, edit, [this, field] { return ResetNumber(Record(), field); });
}

std::string CTelescopePage::TextOf(const QLineEdit* edit) { return FromQString(edit->text()); }

void CTelescopePage::ShowText(QLineEdit* edit, const std::string& text)
{
    const QSignalBlocker quiet(edit);
    edit->setText(ToQString(text));
}

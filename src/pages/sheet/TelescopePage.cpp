#include "pages/sheet/TelescopePage.h"

#include "document/OrrevaDoc.h"
#include "pages/sheet/Controls.h"
#include "pages/sheet/HelpStrip.h"

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
    BindTyping(edits, [this] { Changed(); });
}

void CTelescopePage::BindReset(QAbstractButton* button, QLineEdit* edit, std::function<std::string()> reset)
{
    ::BindReset(button, edit, std::move(reset), [this] { Changed(); });
}

void CTelescopePage::BindReset(QAbstractButton* button, QLineEdit* edit, const NumberField& field)
{
    BindReset(button, edit, [this, field] { return ResetNumber(Record(), field); });
}

#include "moc_TelescopePage.cpp"

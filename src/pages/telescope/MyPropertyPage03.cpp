#include "pages/telescope/MyPropertyPage03.h"

#include "document/OrrevaDoc.h"

#include "ui_MyPropertyPage03.h"

#include <algorithm>

CMyPropertyPage03::CMyPropertyPage03(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardBack | kWizardNext, parent), m_ui(std::make_unique<Ui::MyPropertyPage03>())
{
    m_ui->setupUi(this);
    BindHelpStrip();
    // Both in the order of FocuserNumber.
    m_edits = {m_ui->diameter, m_ui->height, m_ui->spare, m_ui->oazTravel, m_ui->oazLength, m_ui->oschTravel};
    CResetButton* const resets[] = {m_ui->resetDiameter,  m_ui->resetHeight,    m_ui->resetSpare,
                                    m_ui->resetOazTravel, m_ui->resetOazLength, m_ui->resetOschTravel};
    m_types = {m_ui->type0, m_ui->type1, m_ui->type2};

    const FocuserTexts texts = ReadFocuser(Record());
    for (std::size_t i = 0; i < kFocuserNumbers; ++i) {
        ShowText(m_edits[i], texts.numbers[i]);
        BindData({m_edits[i]});
        BindReset(resets[i], m_edits[i], kFocuserFields[i].number);
    }
    NameReset(m_ui->resetBore, m_ui->bore); // the one that is never enabled
    m_typeOfRecord = texts.type;
    for (std::size_t i = 0; i < m_types.size(); ++i) {
        m_types[i]->setChecked(static_cast<std::int32_t>(i) == m_typeOfRecord);
        connect(m_types[i], &QRadioButton::clicked, this, [this] {
            EnableFields();
            Changed();
        });
    }
    EnableFields();
}

CMyPropertyPage03::~CMyPropertyPage03() = default;

std::int32_t CMyPropertyPage03::Type() const
{
    const auto chosen = std::ranges::find_if(m_types, &QRadioButton::isChecked);
    return chosen == m_types.end() ? m_typeOfRecord : static_cast<std::int32_t>(chosen - m_types.begin());
}

void CMyPropertyPage03::EnableFields()
{
    for (const FocuserNumber field : {kFocuserOazTravel, kFocuserOazLength, kFocuserOschTravel}) {
        m_edits[field]->setEnabled(IsFocuserFieldEnabled(field, Type()));
    }
}

void CMyPropertyPage03::Store()
{
    FocuserTexts texts;
    texts.type = Type();
    std::ranges::transform(m_edits, texts.numbers.begin(), TextOf);
    StoreFocuser(Record(), texts);
}

#include "moc_MyPropertyPage03.cpp"

#include "pages/telescope/MyPropertyPage03.h"

#include "document/OrrevaDoc.h"

#include "ui_MyPropertyPage03.h"

#include <algorithm>

CMyPropertyPage03::CMyPropertyPage03(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardBack | kWizardNext, parent), ui(std::make_unique<Ui::MyPropertyPage03>())
{
    ui->setupUi(this);
    BindHelpStrip();
    // Both in the order of FocuserNumber.
    edits = {ui->diameter, ui->height, ui->spare, ui->oazTravel, ui->oazLength, ui->oschTravel};
    CResetButton* const resets[] = {ui->resetDiameter,  ui->resetHeight,    ui->resetSpare,
                                    ui->resetOazTravel, ui->resetOazLength, ui->resetOschTravel};
    types = {ui->type0, ui->type1, ui->type2};

    const FocuserTexts texts = ReadFocuser(Record());
    for (std::size_t i = 0; i < kFocuserNumbers; ++i) {
        ShowText(edits[i], texts.numbers[i]);
        BindData({edits[i]});
        BindReset(resets[i], edits[i], kFocuserFields[i].number);
    }
    typeOfRecord = texts.type;
    for (std::size_t i = 0; i < types.size(); ++i) {
        types[i]->setChecked(static_cast<std::int32_t>(i) == typeOfRecord);
        connect(types[i], &QRadioButton::clicked, this, [this] {
            EnableFields();
            Changed();
        });
    }
    EnableFields();
}

CMyPropertyPage03::~CMyPropertyPage03() = default;

std::int32_t CMyPropertyPage03::Type() const
{
    const auto chosen = std::ranges::find_if(types, &QRadioButton::isChecked);
    return chosen == types.end() ? typeOfRecord : static_cast<std::int32_t>(chosen - types.begin());
}

void CMyPropertyPage03::EnableFields()
{
    for (const FocuserNumber field : {kFocuserOazTravel, kFocuserOazLength, kFocuserOschTravel}) {
        edits[field]->setEnabled(IsFocuserFieldEnabled(field, Type()));
    }
}

void CMyPropertyPage03::Store()
{
    FocuserTexts texts;
    texts.type = Type();
    std::ranges::transform(edits, texts.numbers.begin(), TextOf);
    StoreFocuser(Record(), texts);
}

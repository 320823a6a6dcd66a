#include "pages/tube/PropertyPageTube3.h"

#include "painting/QtText.h"

#include "ui_PropertyPageTube3.h"

CPropertyPageTube3::CPropertyPageTube3(COrrevaDoc& doc, QWidget* parent)
    : CPropertyPageTube(doc, parent), m_ui(std::make_unique<Ui::PropertyPageTube3>())
{
    m_ui->setupUi(this);
    BindTubeHelp();
    for (const TubeType& type : TrussChoices()) {
        m_ui->trussType->addItem(ToQString(type.text));
    }
    ShowTruss();

    Connect(m_ui->boxThickness, m_ui->boxThicknessReset, kTrussBoxThickness);
    Connect(m_ui->boxHeight, m_ui->boxHeightReset, kTrussBoxHeight);
    Connect(m_ui->cageThickness, m_ui->cageThicknessReset, kTrussCageThickness);
    Connect(m_ui->cageHeight, m_ui->cageHeightReset, kTrussCageHeight);
    connect(m_ui->trussType, &QComboBox::activated, this, [this](int row) {
        if (StoreTrussChoice(Record(), row)) {
            ShowChange();
        }
    });
}

CPropertyPageTube3::~CPropertyPageTube3() = default;

void CPropertyPageTube3::Connect(QLineEdit* edit, const QToolButton* reset, const NumberField& field)
{
    connect(edit, &QLineEdit::textEdited, this, &CPropertyPageTube3::Update3);
    connect(reset, &QToolButton::clicked, this, [this, edit, field] {
        edit->setText(ToQString(ResetNumber(Record(), field)));
        ShowGap();
        ShowChange();
    });
}

void CPropertyPageTube3::ShowTruss()
{
    const TrussTexts texts = ReadTruss(Record());
    m_ui->boxThickness->setText(ToQString(texts.box_thickness));
    m_ui->boxHeight->setText(ToQString(texts.box_height));
    m_ui->cageThickness->setText(ToQString(texts.cage_thickness));
    m_ui->cageHeight->setText(ToQString(texts.cage_height));
    m_ui->trussType->setCurrentIndex(TrussChoiceOf(Record().GetTubeType()));
    ShowGap();
}

void CPropertyPageTube3::ShowGap() { m_ui->gap->setText(ToQString(TrussGapText(Record()))); }

void CPropertyPageTube3::Update3()
{
    TrussTexts texts;
    texts.box_thickness = FromQString(m_ui->boxThickness->text());
    texts.box_height = FromQString(m_ui->boxHeight->text());
    texts.cage_thickness = FromQString(m_ui->cageThickness->text());
    texts.cage_height = FromQString(m_ui->cageHeight->text());
    StoreTruss(Record(), texts);
    ShowGap();
    ShowChange();
}

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

    Bind(m_ui->boxThickness, m_ui->boxThicknessReset, kTrussBoxThickness);
    Bind(m_ui->boxHeight, m_ui->boxHeightReset, kTrussBoxHeight);
    Bind(m_ui->cageThickness, m_ui->cageThicknessReset, kTrussCageThickness);
    Bind(m_ui->cageHeight, m_ui->cageHeightReset, kTrussCageHeight);
    connect(m_ui->trussType, &QComboBox::activated, this, [this](int row) {
        if (StoreTrussChoice(Record(), row)) {
            ShowChange();
        }
    });
}

CPropertyPageTube3::~CPropertyPageTube3() = default;

void CPropertyPageTube3::Bind(QLineEdit* edit, QAbstractButton* reset, const NumberField& field)
{
    BindTyping({edit}, [this] { Update3(); });
    ::BindReset(
        reset, edit, [this, field] { return ResetNumber(Record(), field); },
        [this] {
            ShowGap();
            ShowChange();
        });
}

void CPropertyPageTube3::ShowTruss()
{
    const TrussTexts texts = ReadTruss(Record());
    ShowText(m_ui->boxThickness, texts.box_thickness);
    ShowText(m_ui->boxHeight, texts.box_height);
    ShowText(m_ui->cageThickness, texts.cage_thickness);
    ShowText(m_ui->cageHeight, texts.cage_height);
    m_ui->trussType->setCurrentIndex(TrussChoiceOf(Record().GetTubeType()));
    ShowGap();
}

void CPropertyPageTube3::ShowGap() { ShowText(m_ui->gap, TrussGapText(Record())); }

void CPropertyPageTube3::Update3()
{
    TrussTexts texts;
    texts.box_thickness = TextOf(m_ui->boxThickness);
    texts.box_height = TextOf(m_ui->boxHeight);
    texts.cage_thickness = TextOf(m_ui->cageThickness);
    texts.cage_height = TextOf(m_ui->cageHeight);
    StoreTruss(Record(), texts);
    ShowGap();
    ShowChange();
}

#include "moc_PropertyPageTube3.cpp"

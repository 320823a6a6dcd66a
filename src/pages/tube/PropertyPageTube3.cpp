#include "pages/tube/PropertyPageTube3.h"

#include "painting/QtText.h"

#include "ui_PropertyPageTube3.h"

CPropertyPageTube3::CPropertyPageTube3(COrrevaDoc& doc, QWidget* parent)
    : CPropertyPageTube(doc, parent), ui(std::make_unique<Ui::PropertyPageTube3>())
{
    ui->setupUi(this);
    BindTubeHelp();
    for (const TubeType& type : TrussChoices()) {
        ui->trussType->addItem(ToQString(type.text));
    }
    ShowTruss();

    Connect(ui->boxThickness, ui->boxThicknessReset, kTrussBoxThickness);
    Connect(ui->boxHeight, ui->boxHeightReset, kTrussBoxHeight);
    Connect(ui->cageThickness, ui->cageThicknessReset, kTrussCageThickness);
    Connect(ui->cageHeight, ui->cageHeightReset, kTrussCageHeight);
    connect(ui->trussType, &QComboBox::activated, this, [this](int row) {
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
    ui->boxThickness->setText(ToQString(texts.box_thickness));
    ui->boxHeight->setText(ToQString(texts.box_height));
    ui->cageThickness->setText(ToQString(texts.cage_thickness));
    ui->cageHeight->setText(ToQString(texts.cage_height));
    ui->trussType->setCurrentIndex(TrussChoiceOf(Record().GetTubeType()));
    ShowGap();
}

void CPropertyPageTube3::ShowGap() { ui->gap->setText(ToQString(TrussGapText(Record()))); }

void CPropertyPageTube3::Update3()
{
    TrussTexts texts;
    texts.box_thickness = FromQString(ui->boxThickness->text());
    texts.box_height = FromQString(ui->boxHeight->text());
    texts.cage_thickness = FromQString(ui->cageThickness->text());
    texts.cage_height = FromQString(ui->cageHeight->text());
    StoreTruss(Record(), texts);
    ShowGap();
    ShowChange();
}

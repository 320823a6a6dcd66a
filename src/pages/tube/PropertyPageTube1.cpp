#include "pages/tube/PropertyPageTube1.h"

#include "document/OrrevaDoc.h"
#include "model/rows/WantedField.h"
#include "painting/QtText.h"

#include "ui_PropertyPageTube1.h"

CPropertyPageTube1::CPropertyPageTube1(COrrevaDoc& doc, QWidget* parent)
    : CPropertyPageTube(doc, parent), ui(std::make_unique<Ui::PropertyPageTube1>())
{
    ui->setupUi(this);
    BindTubeHelp();
    ShowMeasures();
    (DesignOf(Record().GetTubeType()) == kSolidTube ? ui->solid : ui->truss)->setChecked(true);

    for (const QLineEdit* const edit : {ui->insideDiameter, ui->distanceBack, ui->distanceFront}) {
        connect(edit, &QLineEdit::textEdited, this, &CPropertyPageTube1::Update);
    }
    ConnectReset(ui->insideDiameterReset, ui->insideDiameter, kTubeInsideDiameter);
    ConnectReset(ui->distanceBackReset, ui->distanceBack, kTubeDistanceBack);
    ConnectReset(ui->distanceFrontReset, ui->distanceFront, kTubeDistanceFront);
    ConnectWantedField();
    ConnectDesign();
}

CPropertyPageTube1::~CPropertyPageTube1() = default;

void CPropertyPageTube1::ConnectWantedField()
{
    connect(ui->wantedDegrees, &QLineEdit::textEdited, this, [this](const QString& degrees) {
        ui->wantedField->setText(ToQString(WantedFieldMillimetres(Record(), FromQString(degrees))));
        Update();
    });
    connect(ui->wantedField, &QLineEdit::textEdited, this, [this] {
        ShowDegrees();
        Update();
    });
    ConnectReset(ui->wantedFieldReset, ui->wantedField, kWantedField);
    connect(ui->wantedFieldReset, &QToolButton::clicked, this, &CPropertyPageTube1::ShowDegrees);
    connect(ui->wantedDegreesReset, &QToolButton::clicked, this, [this] {
        StoreMoonSizedField(Record());
        Record().ResetCaches();
        ui->wantedField->setText(ToQString(ShowNumber(Record(), kWantedField)));
        ShowDegrees();
        ShowChange();
    });
}

void CPropertyPageTube1::ConnectDesign()
{
    connect(ui->solid, &QRadioButton::clicked, this, [this] {
        document.show_box_and_cage = 0;
        Update();
        emit DesignClicked();
    });
    connect(ui->truss, &QRadioButton::clicked, this, [this] {
        Update();
        emit DesignClicked();
    });
}

void CPropertyPageTube1::ConnectReset(const QToolButton* button, QLineEdit* edit, const NumberField& field)
{
    connect(button, &QToolButton::clicked, this, [this, edit, field] {
        edit->setText(ToQString(ResetTubeMeasure(Record(), field)));
        ShowChange();
    });
}

void CPropertyPageTube1::ShowMeasures()
{
    const TubeMeasures texts = ReadTubeMeasures(Record());
    ui->insideDiameter->setText(ToQString(texts.inside_diameter));
    ui->distanceBack->setText(ToQString(texts.distance_back));
    ui->distanceFront->setText(ToQString(texts.distance_front));
    ui->wantedField->setText(ToQString(texts.wanted_field));
    ShowDegrees();
}

void CPropertyPageTube1::ShowDegrees()
{
    ui->wantedDegrees->setText(ToQString(WantedFieldDegrees(Record(), FromQString(ui->wantedField->text()))));
}

void CPropertyPageTube1::Update()
{
    TubeMeasures texts;
    texts.inside_diameter = FromQString(ui->insideDiameter->text());
    texts.distance_back = FromQString(ui->distanceBack->text());
    texts.distance_front = FromQString(ui->distanceFront->text());
    texts.wanted_field = FromQString(ui->wantedField->text());
    StoreTubeMeasures(Record(), texts, ui->solid->isChecked() ? kSolidTube : kTrussTube);
    ShowChange();
}

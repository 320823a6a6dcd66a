#include "pages/tube/PropertyPageTube1.h"

#include "document/OrrevaDoc.h"
#include "model/rows/WantedField.h"
#include "painting/QtText.h"

#include "ui_PropertyPageTube1.h"

CPropertyPageTube1::CPropertyPageTube1(COrrevaDoc& doc, QWidget* parent)
    : CPropertyPageTube(doc, parent), m_ui(std::make_unique<Ui::PropertyPageTube1>())
{
    m_ui->setupUi(this);
    BindTubeHelp();
    ShowMeasures();
    (DesignOf(Record().GetTubeType()) == kSolidTube ? m_ui->solid : m_ui->truss)->setChecked(true);

    for (const QLineEdit* const edit : {m_ui->insideDiameter, m_ui->distanceBack, m_ui->distanceFront}) {
        connect(edit, &QLineEdit::textEdited, this, &CPropertyPageTube1::Update);
    }
    ConnectReset(m_ui->insideDiameterReset, m_ui->insideDiameter, kTubeInsideDiameter);
    ConnectReset(m_ui->distanceBackReset, m_ui->distanceBack, kTubeDistanceBack);
    ConnectReset(m_ui->distanceFrontReset, m_ui->distanceFront, kTubeDistanceFront);
    ConnectWantedField();
    ConnectDesign();
}

CPropertyPageTube1::~CPropertyPageTube1() = default;

void CPropertyPageTube1::ConnectWantedField()
{
    connect(m_ui->wantedDegrees, &QLineEdit::textEdited, this, [this](const QString& degrees) {
        m_ui->wantedField->setText(ToQString(WantedFieldMillimetres(Record(), FromQString(degrees))));
        Update();
    });
    connect(m_ui->wantedField, &QLineEdit::textEdited, this, [this] {
        ShowDegrees();
        Update();
    });
    ConnectReset(m_ui->wantedFieldReset, m_ui->wantedField, kWantedField);
    connect(m_ui->wantedFieldReset, &QToolButton::clicked, this, &CPropertyPageTube1::ShowDegrees);
    connect(m_ui->wantedDegreesReset, &QToolButton::clicked, this, [this] {
        StoreMoonSizedField(Record());
        Record().ResetCaches();
        m_ui->wantedField->setText(ToQString(ShowNumber(Record(), kWantedField)));
        ShowDegrees();
        ShowChange();
    });
}

void CPropertyPageTube1::ConnectDesign()
{
    connect(m_ui->solid, &QRadioButton::clicked, this, [this] {
        m_document.show_box_and_cage = 0;
        Update();
        emit DesignClicked();
    });
    connect(m_ui->truss, &QRadioButton::clicked, this, [this] {
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
    m_ui->insideDiameter->setText(ToQString(texts.inside_diameter));
    m_ui->distanceBack->setText(ToQString(texts.distance_back));
    m_ui->distanceFront->setText(ToQString(texts.distance_front));
    m_ui->wantedField->setText(ToQString(texts.wanted_field));
    ShowDegrees();
}

void CPropertyPageTube1::ShowDegrees()
{
    m_ui->wantedDegrees->setText(
        ToQString(WantedFieldDegrees(Record(), FromQString(m_ui->wantedField->text()))));
}

void CPropertyPageTube1::Update()
{
    TubeMeasures texts;
    texts.inside_diameter = FromQString(m_ui->insideDiameter->text());
    texts.distance_back = FromQString(m_ui->distanceBack->text());
    texts.distance_front = FromQString(m_ui->distanceFront->text());
    texts.wanted_field = FromQString(m_ui->wantedField->text());
    StoreTubeMeasures(Record(), texts, m_ui->solid->isChecked() ? kSolidTube : kTrussTube);
    ShowChange();
}

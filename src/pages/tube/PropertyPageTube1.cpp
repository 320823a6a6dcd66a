#include "pages/tube/PropertyPageTube1.h"

#include "document/OrrevaDoc.h"
#include "model/rows/WantedField.h"

#include "ui_PropertyPageTube1.h"

CPropertyPageTube1::CPropertyPageTube1(COrrevaDoc& doc, QWidget* parent)
    : CPropertyPageTube(doc, parent), m_ui(std::make_unique<Ui::PropertyPageTube1>())
{
    m_ui->setupUi(this);
    BindTubeHelp();
    ShowMeasures();
    (DesignOf(Record().GetTubeType()) == kSolidTube ? m_ui->solid : m_ui->truss)->setChecked(true);

    BindTyping({m_ui->insideDiameter, m_ui->distanceBack, m_ui->distanceFront}, [this] { Update(); });
    BindReset(m_ui->insideDiameterReset, m_ui->insideDiameter, kTubeInsideDiameter);
    BindReset(m_ui->distanceBackReset, m_ui->distanceBack, kTubeDistanceBack);
    BindReset(m_ui->distanceFrontReset, m_ui->distanceFront, kTubeDistanceFront);
    BindWantedField();
    ConnectDesign();
}

CPropertyPageTube1::~CPropertyPageTube1() = default;

void CPropertyPageTube1::BindWantedField()
{
    BindTyping({m_ui->wantedDegrees}, [this] {
        ShowText(m_ui->wantedField, WantedFieldMillimetres(Record(), TextOf(m_ui->wantedDegrees)));
        Update();
    });
    BindTyping({m_ui->wantedField}, [this] {
        ShowDegrees();
        Update();
    });
    BindReset(m_ui->wantedFieldReset, m_ui->wantedField, kWantedField);
    connect(m_ui->wantedFieldReset, &QToolButton::clicked, this, &CPropertyPageTube1::ShowDegrees);
    ::BindReset(
        m_ui->wantedDegreesReset, m_ui->wantedField,
        [this] {
            StoreMoonSizedField(Record());
            Record().ResetCaches();
            return ShowNumber(Record(), kWantedField);
        },
        [this] {
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

void CPropertyPageTube1::ShowMeasures()
{
    const TubeMeasures texts = ReadTubeMeasures(Record());
    ShowText(m_ui->insideDiameter, texts.inside_diameter);
    ShowText(m_ui->distanceBack, texts.distance_back);
    ShowText(m_ui->distanceFront, texts.distance_front);
    ShowText(m_ui->wantedField, texts.wanted_field);
    ShowDegrees();
}

void CPropertyPageTube1::ShowDegrees()
{
    ShowText(m_ui->wantedDegrees, WantedFieldDegrees(Record(), TextOf(m_ui->wantedField)));
}

void CPropertyPageTube1::Update()
{
    TubeMeasures texts;
    texts.inside_diameter = TextOf(m_ui->insideDiameter);
    texts.distance_back = TextOf(m_ui->distanceBack);
    texts.distance_front = TextOf(m_ui->distanceFront);
    texts.wanted_field = TextOf(m_ui->wantedField);
    StoreTubeMeasures(Record(), texts, m_ui->solid->isChecked() ? kSolidTube : kTrussTube);
    ShowChange();
}

#include "moc_PropertyPageTube1.cpp"

#include "pages/optics/PropertyPageCouder1.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "model/optics/CouderMask.h"
#include "pages/sheet/Fields.h"

#include "ui_PropertyPageCouder1.h"

#include <algorithm>
#include <initializer_list>

namespace {

/// The number of the selected button of a group; they count from 0.
std::int32_t Chosen(std::initializer_list<const QRadioButton*> group)
{
    const auto chosen = std::ranges::find_if(group, &QRadioButton::isChecked);
    return static_cast<std::int32_t>(chosen - group.begin());
}

void ShowRows(CResultList& list, const ZoneTable& table)
{
    list.SetComputedRows(table.RowCount(), [table](int row) { return table.Row(row); });
}

} // namespace

CPropertyPageCouder1::CPropertyPageCouder1(COrrevaDoc& doc, QWidget* parent)
    : CPropertyPage(parent), m_document(doc), m_ui(std::make_unique<Ui::PropertyPageCouder1>())
{
    m_ui->setupUi(this);
    const Mirror mirror = ReadMirror();
    ShowFields(OpenZoneFields(mirror.D, mirror.F));
    RebuildColumnsAndRows();
    RebuildMask();
    ConnectFields();
    ConnectResets();
    ConnectButtons();
}

CPropertyPageCouder1::~CPropertyPageCouder1() = default;

CPropertyPageCouder1::Mirror CPropertyPageCouder1::ReadMirror()
{
    const double D = m_document.main_record.GetMirrorDiameter();
    const double F = m_document.main_record.GetFocalLength();
    return {D, F};
}

void CPropertyPageCouder1::ShowFields(const ZoneFields& fields)
{
    ShowText(m_ui->wantedZones, fields.wanted_zones);
    ShowText(m_ui->centre, fields.centre_percent);
    ShowText(m_ui->edge, fields.edge_width);
}

ZoneFields CPropertyPageCouder1::TakeFields() const
{
    ZoneFields fields;
    fields.wanted_zones = TextOf(m_ui->wantedZones);
    fields.centre_percent = TextOf(m_ui->centre);
    fields.edge_width = TextOf(m_ui->edge);
    fields.view.mask_type = Chosen({m_ui->couderMask, m_ui->everestPinstick});
    fields.view.centre_method = Chosen({m_ui->carlin, m_ui->couder, m_ui->texereau});
    fields.view.light_source = Chosen({m_ui->movingSource, m_ui->fixedSource});
    return fields;
}

void CPropertyPageCouder1::ConnectFields()
{
    BindTyping({m_ui->wantedZones, m_ui->centre, m_ui->edge}, [this] { RebuildRows(); });
    for (const QRadioButton* const radio : findChildren<QRadioButton*>()) {
        connect(radio, &QRadioButton::clicked, this, &CPropertyPageCouder1::RebuildColumnsAndRows);
    }
}

void CPropertyPageCouder1::ConnectResets()
{
    const auto rebuild = [this] { RebuildColumnsAndRows(); };
    const auto proposedZones = [this] {
        const Mirror mirror = ReadMirror();
        return ProposedZonesText(TakeFields(), mirror.D, mirror.F);
    };
    BindReset(
        m_ui->centreReset, m_ui->centre, [] { return ZoneFields().centre_percent; }, rebuild);
    BindReset(
        m_ui->edgeReset, m_ui->edge, [] { return ZoneFields().edge_width; }, rebuild);
    BindReset(m_ui->wantedZonesReset, m_ui->wantedZones, proposedZones, rebuild);
}

void CPropertyPageCouder1::ConnectButtons()
{
    connect(m_ui->takeOver, &QPushButton::clicked, this, [this] {
        const Mirror mirror = ReadMirror();
        TakeOverZones(TakeFields(), mirror.D, mirror.F);
        RebuildMask();
    });
    for (const QPushButton* const unfinished : {m_ui->editZone, m_ui->saveMask, m_ui->chooseMask}) {
        connect(unfinished, &QPushButton::clicked, this,
                [this] { m_document.Host().ShowMessage(kUnfinishedMessage); });
    }
}

void CPropertyPageCouder1::RebuildColumnsAndRows()
{
    const Mirror mirror = ReadMirror();
    m_ui->zones->SetColumns(CalculatedZones(TakeFields(), mirror.D, mirror.F).Columns(), g_nLanguage);
    RebuildRows();
}

void CPropertyPageCouder1::RebuildRows()
{
    const Mirror mirror = ReadMirror();
    const ZoneFields fields = TakeFields();
    ShowText(m_ui->optimum, OptimumZonesText(fields, mirror.D, mirror.F));
    ShowRows(*m_ui->zones, CalculatedZones(fields, mirror.D, mirror.F));
}

void CPropertyPageCouder1::RebuildMask()
{
    const ZoneTable mask = MaskZones(g_pCurrentMask.get());
    m_ui->maskZones->SetColumns(mask.Columns(), g_nLanguage);
    ShowRows(*m_ui->maskZones, mask);
}

#include "moc_PropertyPageCouder1.cpp"

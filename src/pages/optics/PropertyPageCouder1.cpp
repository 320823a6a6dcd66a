#include "pages/optics/PropertyPageCouder1.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "model/optics/CouderMask.h"
#include "painting/QtText.h"

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
    m_ui->wantedZones->setText(ToQString(fields.wanted_zones));
    m_ui->centre->setText(ToQString(fields.centre_percent));
    m_ui->edge->setText(ToQString(fields.edge_width));
}

ZoneFields CPropertyPageCouder1::TakeFields() const
{
    ZoneFields fields;
    fields.wanted_zones = FromQString(m_ui->wantedZones->text());
    fields.centre_percent = FromQString(m_ui->centre->text());
    fields.edge_width = FromQString(m_ui->edge->text());
    fields.view.mask_type = Chosen({m_ui->couderMask, m_ui->everestPinstick});
    fields.view.centre_method = Chosen({m_ui->carlin, m_ui->couder, m_ui->texereau});
    fields.view.light_source = Chosen({m_ui->movingSource, m_ui->fixedSource});
    return fields;
}

void CPropertyPageCouder1::ConnectFields()
{
    for (const QLineEdit* const edit : {m_ui->wantedZones, m_ui->centre, m_ui->edge}) {
        connect(edit, &QLineEdit::textEdited, this, &CPropertyPageCouder1::RebuildRows);
    }
    for (const QRadioButton* const radio : findChildren<QRadioButton*>()) {
        connect(radio, &QRadioButton::clicked, this, &CPropertyPageCouder1::RebuildColumnsAndRows);
    }
}

void CPropertyPageCouder1::ConnectResets()
{
    const auto bind = [this](const QToolButton* button, QLineEdit* edit, auto proposal) {
        connect(button, &QToolButton::clicked, this, [this, edit, proposal] {
            edit->setText(ToQString(proposal()));
            RebuildColumnsAndRows();
        });
    };
    bind(m_ui->centreReset, m_ui->centre, [] { return ZoneFields().centre_percent; });
    bind(m_ui->edgeReset, m_ui->edge, [] { return ZoneFields().edge_width; });
    bind(m_ui->wantedZonesReset, m_ui->wantedZones, [this] {
        const Mirror mirror = ReadMirror();
        return ProposedZonesText(TakeFields(), mirror.D, mirror.F);
    });
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
    m_ui->optimum->setText(ToQString(OptimumZonesText(fields, mirror.D, mirror.F)));
    ShowRows(*m_ui->zones, CalculatedZones(fields, mirror.D, mirror.F));
}

void CPropertyPageCouder1::RebuildMask()
{
    const ZoneTable mask = MaskZones(g_pCurrentMask.get());
    m_ui->maskZones->SetColumns(mask.Columns(), g_nLanguage);
    ShowRows(*m_ui->maskZones, mask);
}

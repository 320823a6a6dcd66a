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
    : CPropertyPage(parent), document(doc), ui(std::make_unique<Ui::PropertyPageCouder1>())
{
    ui->setupUi(this);
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
    const double D = document.main_record.GetMirrorDiameter();
    const double F = document.main_record.GetFocalLength();
    return {D, F};
}

void CPropertyPageCouder1::ShowFields(const ZoneFields& fields)
{
    ui->wantedZones->setText(ToQString(fields.wanted_zones));
    ui->centre->setText(ToQString(fields.centre_percent));
    ui->edge->setText(ToQString(fields.edge_width));
}

ZoneFields CPropertyPageCouder1::TakeFields() const
{
    ZoneFields fields;
    fields.wanted_zones = FromQString(ui->wantedZones->text());
    fields.centre_percent = FromQString(ui->centre->text());
    fields.edge_width = FromQString(ui->edge->text());
    fields.view.mask_type = Chosen({ui->couderMask, ui->everestPinstick});
    fields.view.centre_method = Chosen({ui->carlin, ui->couder, ui->texereau});
    fields.view.light_source = Chosen({ui->movingSource, ui->fixedSource});
    return fields;
}

void CPropertyPageCouder1::ConnectFields()
{
    for (const QLineEdit* const edit : {ui->wantedZones, ui->centre, ui->edge}) {
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
    bind(ui->centreReset, ui->centre, [] { return ZoneFields().centre_percent; });
    bind(ui->edgeReset, ui->edge, [] { return ZoneFields().edge_width; });
    bind(ui->wantedZonesReset, ui->wantedZones, [this] {
        const Mirror mirror = ReadMirror();
        return ProposedZonesText(TakeFields(), mirror.D, mirror.F);
    });
}

void CPropertyPageCouder1::ConnectButtons()
{
    connect(ui->takeOver, &QPushButton::clicked, this, [this] {
        const Mirror mirror = ReadMirror();
        TakeOverZones(TakeFields(), mirror.D, mirror.F);
        RebuildMask();
    });
    for (const QPushButton* const unfinished : {ui->editZone, ui->saveMask, ui->chooseMask}) {
        connect(unfinished, &QPushButton::clicked, this,
                [this] { document.Host().ShowMessage(kUnfinishedMessage); });
    }
}

void CPropertyPageCouder1::RebuildColumnsAndRows()
{
    const Mirror mirror = ReadMirror();
    ui->zones->SetColumns(CalculatedZones(TakeFields(), mirror.D, mirror.F).Columns(), g_nLanguage);
    RebuildRows();
}

void CPropertyPageCouder1::RebuildRows()
{
    const Mirror mirror = ReadMirror();
    const ZoneFields fields = TakeFields();
    ui->optimum->setText(ToQString(OptimumZonesText(fields, mirror.D, mirror.F)));
    ShowRows(*ui->zones, CalculatedZones(fields, mirror.D, mirror.F));
}

void CPropertyPageCouder1::RebuildMask()
{
    const ZoneTable mask = MaskZones(g_pCurrentMask.get());
    ui->maskZones->SetColumns(mask.Columns(), g_nLanguage);
    ShowRows(*ui->maskZones, mask);
}

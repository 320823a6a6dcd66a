#include "pages/telescope/MyPropertyPage02.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "painting/QtText.h"

#include "ui_MyPropertyPage02.h"

CMyPropertyPage02::CMyPropertyPage02(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardBack | kWizardNext, parent), ui(std::make_unique<Ui::MyPropertyPage02>())
{
    ui->setupUi(this);
    BindHelpStrip();
    const PrimaryTexts texts = ReadPrimary(Record());
    ShowText(ui->focalLength, texts.focal_length);
    ShowText(ui->diameter, texts.diameter);
    ShowText(ui->thickness, texts.thickness);
    ShowText(ui->density, texts.density);
    for (const Material& material : Materials()) {
        ui->material->addItem(ToQString(material.entry));
    }
    ui->material->setCurrentIndex(-1); // the record's glass is not sought in the list
    ui->results->SetColumns(kPrimaryColumns, g_nLanguage);

    BindData({ui->focalLength, ui->diameter, ui->thickness, ui->density});
    // Shown for information: nothing is computed from them.
    connect(ui->modulus, &QLineEdit::textChanged, this, &CPropertyPage::Modified);
    connect(ui->poisson, &QLineEdit::textChanged, this, &CPropertyPage::Modified);
    BindReset(ui->resetFocalLength, ui->focalLength, kPrimaryFocalLength);
    BindReset(ui->resetDiameter, ui->diameter, kPrimaryDiameter);
    BindReset(ui->resetDensity, ui->density, kPrimaryDensity);
    // Unlike the others it follows the typed diameter and leaves the record alone.
    BindReset(ui->resetThickness, ui->thickness, [this] { return UsualThickness(TextOf(ui->diameter)); });
    connect(ui->material, &QComboBox::activated, this, &CMyPropertyPage02::SelectMaterial);
    connect(ui->details, &QCheckBox::toggled, this, &CMyPropertyPage02::Refresh);
    Refresh();
}

CMyPropertyPage02::~CMyPropertyPage02() = default;

PrimaryTexts CMyPropertyPage02::Texts() const
{
    return {TextOf(ui->focalLength), TextOf(ui->diameter), TextOf(ui->thickness), TextOf(ui->density)};
}

void CMyPropertyPage02::Store() { StorePrimary(Record(), Texts()); }

void CMyPropertyPage02::Refresh()
{
    ui->results->SetRows(PrimaryRows(Texts(), ui->details->isChecked(), g_nLanguage));
}

void CMyPropertyPage02::SelectMaterial(int index)
{
    if (index < 0) {
        return;
    }
    if (static_cast<std::size_t>(index) >= Materials().size()) {
        document.Host().ShowMessage(UnknownMaterialText(index).c_str());
        return;
    }
    const Material& material = Materials()[static_cast<std::size_t>(index)];
    const MaterialTexts texts = TextsOf(material);
    ShowText(ui->modulus, texts.modulus);
    ShowText(ui->poisson, texts.poisson);
    ShowText(ui->density, texts.density);
    Record().SetMaterial(material.stored_name.In(g_nLanguage));
    Changed();
}

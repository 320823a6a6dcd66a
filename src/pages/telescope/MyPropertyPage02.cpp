#include "pages/telescope/MyPropertyPage02.h"

#include "document/OrrevaDoc.h"
#include "lib/text/Language.h"
#include "painting/QtText.h"

#include "ui_MyPropertyPage02.h"

CMyPropertyPage02::CMyPropertyPage02(COrrevaDoc& doc, QWidget* parent)
    : CTelescopePage(doc, kWizardBack | kWizardNext, parent), m_ui(std::make_unique<Ui::MyPropertyPage02>())
{
    m_ui->setupUi(this);
    BindHelpStrip();
    const PrimaryTexts texts = ReadPrimary(Record());
    ShowText(m_ui->focalLength, texts.focal_length);
    ShowText(m_ui->diameter, texts.diameter);
    ShowText(m_ui->thickness, texts.thickness);
    ShowText(m_ui->density, texts.density);
    for (const Material& material : Materials()) {
        m_ui->material->addItem(ToQString(material.entry));
    }
    m_ui->material->setCurrentIndex(-1); // the record's glass is not sought in the list
    m_ui->results->SetColumns(kPrimaryColumns, g_nLanguage);

    BindData({m_ui->focalLength, m_ui->diameter, m_ui->thickness, m_ui->density});
    // Shown for information: nothing is computed from them.
    connect(m_ui->modulus, &QLineEdit::textChanged, this, &CPropertyPage::Modified);
    connect(m_ui->poisson, &QLineEdit::textChanged, this, &CPropertyPage::Modified);
    BindReset(m_ui->resetFocalLength, m_ui->focalLength, kPrimaryFocalLength);
    BindReset(m_ui->resetDiameter, m_ui->diameter, kPrimaryDiameter);
    BindReset(m_ui->resetDensity, m_ui->density, kPrimaryDensity);
    // Unlike the others it follows the typed diameter and leaves the record alone.
    BindReset(m_ui->resetThickness, m_ui->thickness,
              [this] { return UsualThickness(TextOf(m_ui->diameter)); });
    connect(m_ui->material, &QComboBox::activated, this, &CMyPropertyPage02::SelectMaterial);
    connect(m_ui->details, &QCheckBox::toggled, this, &CMyPropertyPage02::Refresh);
    Refresh();
}

CMyPropertyPage02::~CMyPropertyPage02() = default;

PrimaryTexts CMyPropertyPage02::Texts() const
{
    return {TextOf(m_ui->focalLength), TextOf(m_ui->diameter), TextOf(m_ui->thickness),
            TextOf(m_ui->density)};
}

void CMyPropertyPage02::Store() { StorePrimary(Record(), Texts()); }

void CMyPropertyPage02::Refresh()
{
    m_ui->results->SetRows(PrimaryRows(Texts(), m_ui->details->isChecked(), g_nLanguage));
}

void CMyPropertyPage02::SelectMaterial(int index)
{
    if (index < 0) {
        return;
    }
    if (static_cast<std::size_t>(index) >= Materials().size()) {
        m_document.Host().ShowMessage(UnknownMaterialText(index).c_str());
        return;
    }
    const Material& material = Materials()[static_cast<std::size_t>(index)];
    const MaterialTexts texts = TextsOf(material);
    ShowText(m_ui->modulus, texts.modulus);
    ShowText(m_ui->poisson, texts.poisson);
    ShowText(m_ui->density, texts.density);
    Record().SetMaterial(material.stored_name.In(g_nLanguage));
    Changed();
}

#include "moc_MyPropertyPage02.cpp"

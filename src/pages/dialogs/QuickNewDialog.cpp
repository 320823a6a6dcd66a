#include "pages/dialogs/QuickNewDialog.h"

#include "lib/text/Language.h"
#include "model/analysis/QuickNewReading.h"
#include "pages/sheet/Fields.h"
#include "painting/QtText.h"

#include "ui_QuickNewDialog.h"

CQuickNewDialog::CQuickNewDialog(const QuickNewTexts& texts, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::QuickNewDialog>())
{
    m_ui->setupUi(this);
    ShowText(m_ui->title, texts.title);
    ShowText(m_ui->aperture, texts.aperture);
    ShowText(m_ui->focalLength, texts.focal_length);
    m_ui->title->selectAll();
    for (const QLineEdit* const field : {m_ui->aperture, m_ui->focalLength}) {
        connect(field, &QLineEdit::textChanged, this, &CQuickNewDialog::ShowUnderstood);
    }
    ShowUnderstood();
}

CQuickNewDialog::~CQuickNewDialog() = default;

void CQuickNewDialog::ShowUnderstood()
{
    const QuickNewTexts texts = Texts();
    m_ui->understood->setText(ToQString(QuickNewReading(texts.aperture, texts.focal_length, g_nLanguage)));
}

QuickNewTexts CQuickNewDialog::Texts() const
{
    return {TextOf(m_ui->title), TextOf(m_ui->aperture), TextOf(m_ui->focalLength)};
}

#include "moc_QuickNewDialog.cpp"

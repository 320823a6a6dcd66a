#include "pages/dialogs/QuickNewDialog.h"

#include "lib/text/Language.h"
#include "model/analysis/QuickNewReading.h"
#include "painting/QtText.h"

#include "ui_QuickNewDialog.h"

CQuickNewDialog::CQuickNewDialog(const QuickNewTexts& texts, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::QuickNewDialog>())
{
    m_ui->setupUi(this);
    m_ui->title->setText(ToQString(texts.title));
    m_ui->aperture->setText(ToQString(texts.aperture));
    m_ui->focalLength->setText(ToQString(texts.focal_length));
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
    return {FromQString(m_ui->title->text()), FromQString(m_ui->aperture->text()),
            FromQString(m_ui->focalLength->text())};
}

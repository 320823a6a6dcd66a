#include "pages/dialogs/QuickNewDialog.h"

#include "pages/sheet/Fields.h"

#include "ui_QuickNewDialog.h"

CQuickNewDialog::CQuickNewDialog(const QuickNewTexts& texts, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::QuickNewDialog>())
{
    m_ui->setupUi(this);
    ShowText(m_ui->title, texts.title);
    ShowText(m_ui->aperture, texts.aperture);
    ShowText(m_ui->focalLength, texts.focal_length);
    m_ui->title->selectAll();
}

CQuickNewDialog::~CQuickNewDialog() = default;

QuickNewTexts CQuickNewDialog::Texts() const
{
    return {TextOf(m_ui->title), TextOf(m_ui->aperture), TextOf(m_ui->focalLength)};
}

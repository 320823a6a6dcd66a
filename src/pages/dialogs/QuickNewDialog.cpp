#include "pages/dialogs/QuickNewDialog.h"

#include "painting/QtText.h"

#include "ui_QuickNewDialog.h"

CQuickNewDialog::CQuickNewDialog(const QuickNewTexts& texts, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::QuickNewDialog>())
{
    ui->setupUi(this);
    ui->title->setText(ToQString(texts.title));
    ui->aperture->setText(ToQString(texts.aperture));
    ui->focalLength->setText(ToQString(texts.focal_length));
    ui->title->selectAll();
}

CQuickNewDialog::~CQuickNewDialog() = default;

QuickNewTexts CQuickNewDialog::Texts() const
{
    return {FromQString(ui->title->text()), FromQString(ui->aperture->text()),
            FromQString(ui->focalLength->text())};
}

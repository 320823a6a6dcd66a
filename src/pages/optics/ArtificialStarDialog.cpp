#include "pages/optics/ArtificialStarDialog.h"

#include "document/OrrevaDoc.h"
#include "painting/QtText.h"

#include "ui_ArtificialStarDialog.h"

CArtificialStarDialog::CArtificialStarDialog(COrrevaDoc& document, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::ArtificialStarDialog>()), texts(*document.active_record)
{
    ui->setupUi(this);
    ui->resolutionDistance->viewport()->setBackgroundRole(QPalette::Window); // as a line that only shows
    ui->precision->setText(ToQString(texts.Precision()));
    ui->precision->selectAll();
    ui->errorDistance->setText(ToQString(texts.DistanceByError()));
    ui->starDiameter->setText(ToQString(texts.StarDiameter()));
    ui->resolutionDistance->setPlainText(ToQString(texts.DistanceByResolution()));
    connect(ui->precision, &QLineEdit::textChanged, this, &CArtificialStarDialog::OnChangePrecision);
    connect(ui->starDiameter, &QLineEdit::textChanged, this, &CArtificialStarDialog::OnChangeStarDiameter);
}

CArtificialStarDialog::~CArtificialStarDialog() = default;

void CArtificialStarDialog::OnChangePrecision(const QString& text)
{
    ui->errorDistance->setText(ToQString(texts.TypePrecision(FromQString(text).c_str())));
}

void CArtificialStarDialog::OnChangeStarDiameter(const QString& text)
{
    ui->resolutionDistance->setPlainText(ToQString(texts.TypeStarDiameter(FromQString(text).c_str())));
}

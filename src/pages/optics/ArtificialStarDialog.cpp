#include "pages/optics/ArtificialStarDialog.h"

#include "document/OrrevaDoc.h"
#include "painting/QtText.h"

#include "ui_ArtificialStarDialog.h"

CArtificialStarDialog::CArtificialStarDialog(COrrevaDoc& document, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::ArtificialStarDialog>()), m_texts(*document.active_record)
{
    m_ui->setupUi(this);
    m_ui->resolutionDistance->viewport()->setBackgroundRole(QPalette::Window); // as a line that only shows
    m_ui->precision->setText(ToQString(m_texts.Precision()));
    m_ui->precision->selectAll();
    m_ui->errorDistance->setText(ToQString(m_texts.DistanceByError()));
    m_ui->starDiameter->setText(ToQString(m_texts.StarDiameter()));
    m_ui->resolutionDistance->setPlainText(ToQString(m_texts.DistanceByResolution()));
    connect(m_ui->precision, &QLineEdit::textChanged, this, &CArtificialStarDialog::OnChangePrecision);
    connect(m_ui->starDiameter, &QLineEdit::textChanged, this, &CArtificialStarDialog::OnChangeStarDiameter);
}

CArtificialStarDialog::~CArtificialStarDialog() = default;

void CArtificialStarDialog::OnChangePrecision(const QString& text)
{
    m_ui->errorDistance->setText(ToQString(m_texts.TypePrecision(FromQString(text).c_str())));
}

void CArtificialStarDialog::OnChangeStarDiameter(const QString& text)
{
    m_ui->resolutionDistance->setPlainText(ToQString(m_texts.TypeStarDiameter(FromQString(text).c_str())));
}
